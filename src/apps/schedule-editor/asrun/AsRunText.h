#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QCoreApplication>
#include <QString>

class QDate;
class QLocale;

namespace trel::mediadispatch {
enum class AsRunOutcome;
class MomentFormat;
} // namespace trel::mediadispatch

namespace trel::desktop {

struct AsRunDay;
struct AsRunLine;

/// What the host says of what was on a screen, in the language in use. Plain texts.
class AsRunText
{
    Q_DECLARE_TR_FUNCTIONS(AsRunText)

public:
    /// "News", "Last frame of News" or "Black screen".
    static QString planned(const AsRunLine& line);
    /// The same of what was on, or what stood there in its place.
    static QString shown(const AsRunLine& line);
    /// Why the screen was not as planned; empty where it was. Numbers are written as the language
    /// has them.
    static QString remark(const AsRunLine& line, const QLocale& locale);
    /// In local time: with the date where it is not the day, and with the offset where the clock
    /// changes that day.
    static QString moment(mediadispatch::Instant moment, const QDate& day,
                          const mediadispatch::MomentFormat& local);
    /// What there is to say of the whole day.
    static QString summary(const AsRunDay& day, const QLocale& locale);

private:
    static QString verdict(const AsRunDay& day);
    static QString outcome(mediadispatch::AsRunOutcome outcome);
};

} // namespace trel::desktop
