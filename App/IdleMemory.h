#pragma once

#include <QTimer>

namespace Kestrune {

class NotchServices;

/// Gives memory back once no notch was open for a while: free blocks, and the pages of the program's files
/// with code and constants that nothing runs meanwhile. The kernel still has those, and hands them to the
/// process when it needs them again, some sixteen at a time; until then they count for nobody and are the
/// first to go where memory is short.
class IdleMemory
{
public:
    /// `services` outlives it.
    explicit IdleMemory(NotchServices &services);

private:
    NotchServices &m_services;
    QTimer m_timer;
};

} // namespace Kestrune
