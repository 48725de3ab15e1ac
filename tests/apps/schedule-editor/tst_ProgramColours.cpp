#include "LookSupport.h"
#include "look/ProgramColours.h"
#include "look/ThemeColours.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <algorithm>
#include <limits>

using namespace trel::desktop::look;

namespace {

/// As many as a large catalogue has, and the largest index that there can be.
std::vector<int> manyIndexes()
{
    std::vector<int> indexes;
    for (int index = 0; index < 3000; ++index) {
        indexes.push_back(index);
    }
    indexes.push_back(std::numeric_limits<int>::max());
    return indexes;
}

ThemeColours theme()
{
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    if (name == QLatin1String("high-contrast")) {
        return contrastColours();
    }
    return name == QLatin1String("dark") ? darkColours() : lightColours();
}

int distance(const QColor& a, const QColor& b)
{
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue())});
}

} // namespace

class tst_ProgramColours : public QObject
{
    Q_OBJECT

private slots:
    void textsCanBeRead_data() { addThemes(); }
    void textsCanBeRead();
    void linesStandOut_data() { addThemes(); }
    void linesStandOut();
    void neighboursAreFarApart_data() { addThemes(); }
    void neighboursAreFarApart();
    void aProgramKeepsItsColours();
    void withoutAnIndexItLooksLikeAPlan_data() { addThemes(); }
    void withoutAnIndexItLooksLikeAPlan();
};

void tst_ProgramColours::textsCanBeRead()
{
    for (const int index : manyIndexes()) {
        const ProgramColours colours = programColours(index, theme());
        QVERIFY2(contrast(colours.text, colours.ground) >= kLeastContrast,
                 qPrintable(QString::number(index)));
    }
}

void tst_ProgramColours::linesStandOut()
{
    for (const int index : manyIndexes()) {
        const ProgramColours colours = programColours(index, theme());
        QVERIFY2(contrast(colours.line, theme().window) >= 3.0, qPrintable(QString::number(index)));
    }
}

void tst_ProgramColours::neighboursAreFarApart()
{
    for (int index = 0; index < 200; ++index) {
        for (int other = index + 1; other <= index + 5; ++other) {
            const int apart = distance(programColours(index, theme()).ground,
                                       programColours(other, theme()).ground);
            QVERIFY2(apart >= 12,
                     qPrintable(QStringLiteral("%1 and %2: %3").arg(index).arg(other).arg(apart)));
        }
    }
}

void tst_ProgramColours::aProgramKeepsItsColours()
{
    // They are known from former runs: another rule would be another colour for every program.
    for (const ThemeColours& theme : {darkColours(), lightColours()}) {
        const ProgramColours colours = programColours(1, theme);
        QVERIFY(std::abs(colours.line.hslHue() - 137) <= 2);
        QVERIFY(std::abs(colours.ground.hslHue() - 137) <= 2);
    }
}

void tst_ProgramColours::withoutAnIndexItLooksLikeAPlan()
{
    const ProgramColours colours = programColours(-1, theme());
    QCOMPARE(colours.ground, theme().weekBlock);
    QCOMPARE(colours.text, theme().weekBlockText);
    QCOMPARE(colours.line, theme().weekBlockLine);
}

TREL_TEST(tst_ProgramColours, QApplication)
#include "tst_ProgramColours.moc"
