#pragma once

class QVariant;

namespace TVR {

struct Project;

/// What of a project is the work of its user: what a question about unsaved changes is asked for.
/// Two projects are the same work if their files would hold the same, but for what the program
/// writes down for itself.

/// Whether a change of this parameter is one of the user's. It is none where the program writes it
/// whenever a page is shown, a language chosen or a file exported.
bool isUserWork(int id);

/// Whether two stored values of a parameter are the same in a file: a text is the number or the
/// truth value that it stands for, and no value is an empty text.
bool isSameEntry(int id, const QVariant& one, const QVariant& other);

/// Whether a well that both projects have has the same name, place, rates and temperature changes
/// in both. A place that nobody gave is none.
bool isSameWell(const Project& one, const Project& other, int row);

/// Whether two projects are the same work, as far as parameters go that count.
bool isSameWork(const Project& one, const Project& other, bool (*counts)(int id) = isUserWork);

} // namespace TVR
