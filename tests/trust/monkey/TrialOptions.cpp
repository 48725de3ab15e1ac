#include "TrialOptions.h"

#include <QCommandLineParser>

#include <cstdio>

namespace {

constexpr double kSecondsAMinute = 60.0;
constexpr std::chrono::hours kNoEnd(24 * 365);

} // namespace

std::optional<TrialOptions> readTrialOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption minutes(QStringLiteral("minutes"), QString(), QStringLiteral("X"));
    const QCommandLineOption seed(QStringLiteral("seed"), QString(), QStringLiteral("S"));
    const QCommandLineOption actions(QStringLiteral("actions"), QString(), QStringLiteral("N"));
    const QCommandLineOption patience(QStringLiteral("patience"), QString(), QStringLiteral("S"));
    const QCommandLineOption tell(QStringLiteral("tell"));
    parser.addOptions({minutes, seed, actions, patience, tell});

    TrialOptions options;
    bool isRead = parser.parse(arguments) && parser.positionalArguments().isEmpty();
    const auto take = [&](const QCommandLineOption& option, auto use) {
        bool isNumber = true;
        if (parser.isSet(option)) {
            use(parser.value(option), &isNumber);
        }
        isRead = isRead && isNumber;
    };
    take(actions, [&](const QString& text, bool* ok) {
        options.actions = text.toLongLong(ok);
        options.time = kNoEnd;
    });
    take(minutes, [&](const QString& text, bool* ok) {
        options.time = std::chrono::seconds(qRound64(text.toDouble(ok) * kSecondsAMinute));
    });
    take(seed, [&](const QString& text, bool* ok) { options.seed = text.toULongLong(ok); });
    take(patience, [&](const QString& text, bool* ok) {
        options.patience = std::chrono::seconds(text.toInt(ok));
    });
    options.isTold = parser.isSet(tell);
    if (!isRead) {
        std::fputs("Usage: [--minutes X] [--seed S] [--actions N] [--patience SECONDS] [--tell]\n",
                   stderr);
        return std::nullopt;
    }
    return options;
}
