#include "BidiText.h"

#include <QChar>

namespace trel::desktop {

namespace {

constexpr QChar kLeftToRightIsolate(0x2066);
constexpr QChar kRightToLeftIsolate(0x2067);
constexpr QChar kFirstStrongIsolate(0x2068);
constexpr QChar kPopIsolate(0x2069);

} // namespace

QString isolated(const QString& text)
{
    return kFirstStrongIsolate + text + kPopIsolate;
}

QString isolated(const QString& part, const QString& whole)
{
    return (whole.isRightToLeft() ? kRightToLeftIsolate : kLeftToRightIsolate) + part + kPopIsolate;
}

QString leftToRight(const QString& text)
{
    return kLeftToRightIsolate + text + kPopIsolate;
}

} // namespace trel::desktop
