#include "LookSupport.h"
#include "look/EditorStyle.h"
#include "look/ThemeColours.h"
#include "look/Themes.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::desktop;
using namespace trel::desktop::look;

/// The colors of the themes against each other, whether or not a window shows them together now.
class tst_ThemeColours : public QObject
{
    Q_OBJECT

private slots:
    void textsCanBeRead_data() { addThemes(); }
    void textsCanBeRead();
    void palettesCanBeRead_data() { addThemes(); }
    void palettesCanBeRead();
    void edgesAndSignsStandOut_data() { addThemes(); }
    void edgesAndSignsStandOut();
    void theFocusStandsOut_data() { addThemes(); }
    void theFocusStandsOut();
    void nothingMovesOfItself();
};

namespace {

/// The least for edges and signs.
constexpr double kLeastOfSigns = 3.0;

struct Pair
{
    const char* what;
    QColor over;
    QColor ground;
};

ThemeColours theme()
{
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    return name == QLatin1String("high-contrast") ? contrastColours()
           : name == QLatin1String("light")       ? lightColours()
                                                  : darkColours();
}

QString faultsOfPairs(const std::vector<Pair>& pairs, double least)
{
    QString faults;
    for (const Pair& pair : pairs) {
        const double found = contrast(pair.over, pair.ground);
        if (found < least) {
            faults += QStringLiteral("%1: %2 on %3 is %4\n")
                          .arg(QLatin1String(pair.what), pair.over.name(), pair.ground.name())
                          .arg(found);
        }
    }
    return faults;
}

} // namespace

void tst_ThemeColours::textsCanBeRead()
{
    const ThemeColours t = theme();
    std::vector<Pair> pairs;
    pairs.reserve(60);
    for (const QColor& ground :
         {t.window, t.well, t.card, t.title, t.titleHover, t.field, t.button, t.buttonHover,
          t.buttonPressed, t.tint, t.tintHover, t.alternateRow, t.hoveredRow, t.selectedRow,
          t.header, t.floating, t.weekGround, t.weekToday}) {
        pairs.push_back({"text", t.text, ground});
    }
    for (const QColor& ground : {t.window, t.well, t.card, t.field, t.floating, t.weekGround}) {
        pairs.push_back({"faint text", t.faintText, ground});
    }
    for (const QColor& ground :
         {t.window, t.card, t.field, t.disabledField, t.button, t.floating, t.selectedRow}) {
        pairs.push_back({"disabled text", t.disabledText, ground});
    }
    for (const QColor& ground : {t.window, t.card}) {
        pairs.push_back({"error", t.errorText, ground});
    }
    for (const QColor& ground : {t.window, t.card, t.field, t.floating}) {
        pairs.push_back({"link", t.linkText, ground});
    }
    for (const QColor& ground : {t.accent, t.accentHover, t.accentPressed}) {
        pairs.push_back({"text on the accent", t.accentText, ground});
    }
    pairs.insert(pairs.end(), {{"list", t.listText, t.list},
                               {"head of a list", t.listText, t.listHeader},
                               {"no conflict", t.stateFree, t.state},
                               {"conflict", t.stateCollision, t.state},
                               {"block", t.weekBlockText, t.weekBlock},
                               {"hidden block", t.weekHiddenText, t.weekHidden},
                               {"its pattern", t.weekHiddenText, t.weekHiddenPattern},
                               {"black", t.weekBlackText, t.weekBlack},
                               {"frozen", t.weekFrozenText, t.weekFrozen},
                               {"its pattern", t.weekFrozenText, t.weekFrozenPattern},
                               {"cut in", t.weekInsertedText, t.weekInserted},
                               {"clock change", t.weekClockText, t.weekClock},
                               {"its pattern", t.weekClockText, t.weekClockPattern},
                               {"now", t.weekNowText, t.weekNow}});
    const QString faults = faultsOfPairs(pairs, kLeastContrast);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_ThemeColours::palettesCanBeRead()
{
    QString faults;
    for (const QPalette& palette : {windowPalette(theme()), listPalette(theme())}) {
        for (const QPalette::ColorGroup group :
             {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            const auto pair = [&](const char* what, QPalette::ColorRole over,
                                  QPalette::ColorRole ground) {
                return Pair{what, palette.color(group, over), palette.color(group, ground)};
            };
            faults += faultsOfPairs(
                {pair("window", QPalette::WindowText, QPalette::Window),
                 pair("base", QPalette::Text, QPalette::Base),
                 pair("link", QPalette::Link, QPalette::Base),
                 pair("link that was followed", QPalette::LinkVisited, QPalette::Base),
                 pair("button", QPalette::ButtonText, QPalette::Button),
                 pair("selection", QPalette::HighlightedText, QPalette::Highlight),
                 pair("tip", QPalette::ToolTipText, QPalette::ToolTipBase)},
                kLeastContrast);
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_ThemeColours::edgesAndSignsStandOut()
{
    const ThemeColours t = theme();
    const QString faults = faultsOfPairs({{"field in a window", t.fieldLine, t.window},
                                          {"field in a card", t.fieldLine, t.card},
                                          {"the ground of a field", t.fieldLine, t.field},
                                          {"field under the pointer", t.fieldLineHover, t.card},
                                          {"icon", t.icon, t.window},
                                          {"icon in a card", t.icon, t.title},
                                          {"icon under the pointer", t.iconHover, t.iconGround},
                                          {"disabled icon", t.iconDisabled, t.disabledField},
                                          {"disabled step", t.iconDisabled, t.field},
                                          {"thumb", t.scrollThumb, t.window},
                                          {"thumb in a field", t.scrollThumb, t.field},
                                          {"edge of the accent", t.accentLine, t.window},
                                          {"accent", t.accent, t.window},
                                          {"tick", t.accentText, t.accent},
                                          {"done", t.accent, t.field},
                                          {"edge of a block", t.weekBlockLine, t.weekGround},
                                          {"conflict", t.weekCollision, t.weekGround},
                                          {"now", t.weekNow, t.weekGround}},
                                         kLeastOfSigns);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_ThemeColours::theFocusStandsOut()
{
    const ThemeColours t = theme();
    std::vector<Pair> pairs;
    pairs.reserve(10);
    for (const QColor& ground : {t.window, t.well, t.card, t.title, t.field, t.button,
                                 t.buttonHover, t.tint, t.list, t.weekGround}) {
        pairs.push_back({"focus", t.focus, ground});
    }
    const QString faults = faultsOfPairs(pairs, kLeastOfSigns);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_ThemeColours::nothingMovesOfItself()
{
    const EditorStyle style(darkColours());
    QCOMPARE(style.styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, nullptr, nullptr), 0);
    QCOMPARE(style.styleHint(QStyle::SH_Widget_Animate, nullptr, nullptr, nullptr), 0);
}

TREL_TEST(tst_ThemeColours, QApplication)
#include "tst_ThemeColours.moc"
