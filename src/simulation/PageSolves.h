#pragma once

namespace TVR {

class Simulation;
struct OutputTimes;
struct SiteSetup;

/// Throws SetupError for a project without times: a run with a page has one at least.
void requireTimes(const OutputTimes& outputTimes);

/// Starts a fresh simulation of this set-up with the tolerances, the demand period and the sequence
/// of solves of every run that is shown on a page: such runs give the same results to the last bit.
/// Returns as Simulation::start does.
void startOnPage(Simulation& simulation, const SiteSetup& setup);

} // namespace TVR
