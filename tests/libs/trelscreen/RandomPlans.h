#pragma once

#include <QString>
#include <QStringList>
#include <QTime>

#include <cstdint>
#include <random>

/// The same numbers on every machine.
class Draw
{
public:
    explicit Draw(std::uint32_t seed)
        : m_engine(seed)
    {}

    int below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool oneIn(int number) { return below(number) == 0; }

private:
    std::mt19937 m_engine;
};

inline QString timeText(int second)
{
    return QTime(8, 0).addSecs(second).toString(QStringLiteral("hh:mm:ss"));
}

inline QString planText(Draw& draw, int begin, int end, const char* letters)
{
    const QString programs = QLatin1String(letters);
    QString text = timeText(begin) + QLatin1Char('-') + timeText(end);
    for (int i = draw.between(1, 4); i > 0; --i) {
        text += QLatin1Char(' ');
        text += programs.at(draw.below(programs.size()));
        if (draw.oneIn(4)) {
            text += QStringLiteral("*%1").arg(draw.between(2, 3));
        }
    }
    return draw.oneIn(2) ? text + QStringLiteral(" freeze") : text;
}

/// Plans over some five minutes from eight o'clock on, which overlap and leave gaps.
inline QString plansText(Draw& draw, const char* letters)
{
    QStringList plans;
    for (int i = draw.between(2, 7); i > 0; --i) {
        const int begin = draw.below(280);
        plans += planText(draw, begin, begin + draw.between(5, 90), letters);
    }
    return plans.join(QStringLiteral(" / "));
}
