#pragma once

#include <memory>
#include <optional>

#include <QtGlobal>

namespace Kestrune {

/// A descriptor that this process was handed.
class Handed
{
public:
    explicit Handed(int descriptor)
        : m_descriptor(descriptor)
    {}
    ~Handed();
    Q_DISABLE_COPY_MOVE(Handed)

    int get() const { return m_descriptor; }
    /// It is another one's to close from here on.
    int take();

private:
    int m_descriptor;
};

/// The questions that come through the socket.
class Tasks
{
public:
    /// What came with a question: what is to be read, and where to put what is found.
    struct Files
    {
        Files(int toRead, int toFill)
            : file(toRead)
            , memory(toFill)
        {}

        Handed file;
        Handed memory;
    };

    /// Waits for a question of that size; null when there will be none.
    static std::unique_ptr<Files> next(void *question, std::size_t size);
    static void answer(const void *answer, std::size_t size);

    /// Begins to count time for one picture or calendar: the process ends when it takes too long.
    static void beginTime();
    /// Ends counting.
    static void endTime();
};

/// Memory of another process, mapped here to be written.
class Shared
{
public:
    Shared(int descriptor, std::size_t size);
    ~Shared();
    Q_DISABLE_COPY_MOVE(Shared)

    char *data() const { return m_data; } ///< Null when it cannot be had.

private:
    char *m_data;
    std::size_t m_size;
};

} // namespace Kestrune
