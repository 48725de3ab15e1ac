#pragma once

#include <QIODevice>

namespace trel::mediareader {

class InputFile;

/// An InputFile for the toolkit, open for reading. The toolkit's own class for files asks the
/// system more than is answered here.
class InputDevice : public QIODevice
{
    Q_OBJECT

public:
    /// The file outlives it.
    explicit InputDevice(const InputFile& file);

    qint64 size() const override;
    bool isSequential() const override { return false; }

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 maxSize) override;

private:
    const InputFile& m_file;
};

} // namespace trel::mediareader
