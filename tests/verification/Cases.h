#pragma once

namespace Verification {

class Report;

/// Each adds the full form of one case to the report: set-up, tables, figures.
void reportEnergyBalance(Report& report);
void reportImageWells(Report& report);
void reportTheis(Report& report);
void reportSymmetry(Report& report);
void reportClosedLoop(Report& report);
void reportPlume(Report& report);
void reportExchange(Report& report);
void reportDoubletBreakthrough(Report& report);
void reportAcceptedState(Report& report);
void reportPeerDoublet(Report& report);
void reportDispersion(Report& report);
void reportLeftOut(Report& report);
void reportBatchCases(Report& report);

} // namespace Verification
