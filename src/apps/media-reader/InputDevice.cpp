#include "InputDevice.h"

#include "InputFile.h"

namespace trel::mediareader {

InputDevice::InputDevice(const InputFile& file)
    : m_file(file)
{
    // Its position is then that of the next byte to be read from the file.
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 InputDevice::size() const
{
    return m_file.size();
}

qint64 InputDevice::readData(char* data, qint64 maxSize)
{
    return m_file.readAt(pos(), data, maxSize);
}

qint64 InputDevice::writeData(const char* /*data*/, qint64 /*maxSize*/)
{
    return -1;
}

} // namespace trel::mediareader
