#pragma once

#include <QIODevice>

namespace TestSupport {

/// Makes every further write() on an open device fail, while a socket stays connected. A local socket takes all bytes
/// into its buffer otherwise, so that a failing write could not be seen.
inline void makeReadOnly(QIODevice &device)
{
    // The setter is protected; named through a derived class it is a plain member of the base.
    struct Access : QIODevice {
        static constexpr auto setter()
        {
            return &Access::setOpenMode;
        }
    };
    (device.*Access::setter())(QIODevice::ReadOnly);
}

} // namespace TestSupport
