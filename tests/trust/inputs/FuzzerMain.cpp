// What libFuzzer calls. The target stands in the variable TRUST_TARGET, which the processes inherit
// that libFuzzer starts to merge a corpus.

#include "FuzzTarget.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <cstdlib>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t mostSize);

namespace {

const trust::FuzzTarget& chosenTarget()
{
    static const trust::FuzzTarget& target =
        trust::targetNamed(QString::fromLocal8Bit(qgetenv("TRUST_TARGET")));
    return target;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments)
{
    qputenv("TZ", "Europe/Berlin");
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // Lives as long as the process, which libFuzzer ends without coming back here.
    static const auto* const application = new QCoreApplication(*count, *arguments);
    Q_UNUSED(application)
    chosenTarget();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    chosenTarget().run(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t mostSize, unsigned seed)
{
    // The toolkit's own mutations find what no rule thinks of.
    constexpr unsigned ownOfFour = 3;
    const trust::FuzzTarget::Mutate mutate = chosenTarget().mutate;
    return mutate != nullptr && seed % (ownOfFour + 1) < ownOfFour
               ? mutate(data, size, mostSize, seed)
               : LLVMFuzzerMutate(data, size, mostSize);
}
