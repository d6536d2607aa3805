#pragma once

#include <QProcess>

namespace Kestrune {

/// What a crash leaves behind: the memory of the process, and with it copied texts and the note. Not through
/// PR_SET_DUMPABLE, which also hides the process from the desktop's portals; they then refuse it.
namespace CoreDumps {

/// From here on neither this process nor those that it starts leave one, whoever collects them (core(5)).
void forbid();

/// Lets what `process` starts have them as the user has set it: it is not ours.
void allow(QProcess &process);

} // namespace CoreDumps

} // namespace Kestrune
