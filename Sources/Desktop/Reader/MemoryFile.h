#pragma once

#include <QByteArray>

#include <cstddef>

namespace Kestrune {

/// A file that is nothing but memory, to be handed to another process; gone with the object. One thread.
class MemoryFile
{
public:
    explicit MemoryFile(const char *name);
    ~MemoryFile();
    Q_DISABLE_COPY_MOVE(MemoryFile)

    int descriptor() const { return m_descriptor; }

    /// Appends `data`; false without memory for it.
    bool write(const QByteArray &data) const;

    /// Makes it of so many bytes, for ever: nobody can take them away from under who reads them.
    bool reserve(std::size_t size) const;

    /// A copy of its first bytes, which nobody else can change any more; empty when it cannot be read. Only
    /// of what is reserved.
    QByteArray first(std::size_t size) const;

private:
    int m_descriptor;
};

} // namespace Kestrune
