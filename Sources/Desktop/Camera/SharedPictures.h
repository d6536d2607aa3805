#pragma once

#include "CameraWire.h"

#include <QImage>

#include <memory>

namespace Kestrune {

/// The memory through which the helper hands pictures over.
class SharedPictures : public std::enable_shared_from_this<SharedPictures>
{
public:
    /// Null when the system has none to give.
    static std::shared_ptr<SharedPictures> create();
    ~SharedPictures();
    Q_DISABLE_COPY_MOVE(SharedPictures)

    int descriptor() const { return m_descriptor; }

    /// The picture of an order without copying it; the image keeps the memory.
    QImage picture(const CameraWire::Order &order);

private:
    SharedPictures(int descriptor, void *memory)
        : m_descriptor(descriptor)
        , m_memory(memory)
    {}

    const int m_descriptor;
    void *const m_memory;
};

} // namespace Kestrune
