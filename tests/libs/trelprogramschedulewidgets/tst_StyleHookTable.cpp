#include "ShownEditor.h"

#include "ChooserFixture.h"
#include "card/ConflictPass.h"
#include "initProcess.h"
#include "support/MessageLog.h"
#include "support/TestProgram.h"

#include "trelwidgets/TipDialog.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

using namespace trel::mediadispatch;

namespace {

using Properties = std::map<QString, QString>;

/// What a style sheet can know a widget by.
struct Carrier
{
    QStringList types; ///< Its class and the bases of that.
    QString name;
    Properties properties;
    int parent = -1; ///< Where it stands in the same list.
};

/// All that was on screen in one window or another.
class Walk
{
public:
    void add(const QWidget& widget, int parent = -1)
    {
        Carrier carrier;
        for (const QMetaObject* meta = widget.metaObject(); meta; meta = meta->superClass()) {
            carrier.types.append(QString::fromLatin1(meta->className())
                                     .replace(QLatin1String("::"), QLatin1String("--")));
        }
        // What the toolkit gives to parts of its own widgets is nobody's hook.
        if (!widget.objectName().startsWith(QLatin1String("qt_"))) {
            carrier.name = widget.objectName();
        }
        for (const QByteArray& name : widget.dynamicPropertyNames()) {
            if (!name.startsWith("_q_")) {
                carrier.properties[QString::fromLatin1(name)] =
                    widget.property(name.constData()).toString();
            }
        }
        carrier.parent = parent;
        const int place = int(carriers.size());
        carriers.push_back(std::move(carrier));
        for (const QWidget* child :
             widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            add(*child, place);
        }
    }

    std::vector<Carrier> carriers;
};

/// A selector without combinators, such as `QLabel#arrow[labelImage="down"]:hover`.
class Compound
{
public:
    explicit Compound(const QString& text)
    {
        static const QRegularExpression whole(
            QStringLiteral("^(?<type>[A-Za-z][\\w-]*|\\*)?(?<rest>(#\\w+|\\[\\w+(=\"[^\"]*\")?\\]|:"
                           ":?!?[a-z-]+)*)$"));
        static const QRegularExpression part(
            QStringLiteral("#(?<name>\\w+)|\\[(?<property>\\w+)(=\"(?<value>[^\"]*)\")?\\]"));
        const QRegularExpressionMatch match = whole.match(text);
        isValid = match.hasMatch() && !text.isEmpty();
        type = match.captured(QStringLiteral("type"));
        auto parts = part.globalMatch(match.captured(QStringLiteral("rest")));
        while (parts.hasNext()) {
            const QRegularExpressionMatch found = parts.next();
            const QString property = found.captured(QStringLiteral("property"));
            if (property.isEmpty()) {
                name = found.captured(QStringLiteral("name"));
            } else {
                const bool hasValue = found.capturedStart(QStringLiteral("value")) >= 0;
                properties[property] =
                    hasValue ? std::optional<QString>(found.captured(QStringLiteral("value")))
                             : std::nullopt;
            }
        }
    }

    bool matches(const Carrier& carrier) const
    {
        return (type.isEmpty() || type == QLatin1String("*") || carrier.types.contains(type)) &&
               (name.isEmpty() || carrier.name == name) &&
               std::all_of(properties.begin(), properties.end(), [&carrier](const auto& wanted) {
                   const auto held = carrier.properties.find(wanted.first);
                   return held != carrier.properties.end() &&
                          (!wanted.second || held->second == *wanted.second);
               });
    }

    bool isValid = false;
    QString type;
    QString name;
    std::map<QString, std::optional<QString>> properties;
};

/// A selector of a sheet, from the outermost widget to the one that it is for.
class Selector
{
public:
    explicit Selector(const QString& text)
        : m_text(text.simplified())
    {
        const QStringList words = m_text.split(QLatin1Char(' '));
        bool isChild = false;
        for (const QString& word : words) {
            if (word == QLatin1String(">")) {
                isChild = true;
                continue;
            }
            m_steps.push_back({Compound(word), isChild});
            isChild = false;
        }
    }

    const QString& text() const { return m_text; }
    bool isValid() const
    {
        return std::all_of(m_steps.begin(), m_steps.end(),
                           [](const Step& step) { return step.compound.isValid; });
    }
    bool matchesAny(const std::vector<Carrier>& carriers) const
    {
        return std::any_of(carriers.begin(), carriers.end(), [&](const Carrier& carrier) {
            return matches(carriers, carrier, m_steps.size() - 1);
        });
    }

private:
    struct Step
    {
        Compound compound;
        bool isChild = false; ///< Of the step before, and not of any depth.
    };

    bool matches(const std::vector<Carrier>& carriers, const Carrier& carrier,
                 std::size_t step) const
    {
        if (!m_steps[step].compound.matches(carrier)) {
            return false;
        }
        if (step == 0) {
            return true;
        }
        for (int above = carrier.parent; above >= 0; above = carriers[std::size_t(above)].parent) {
            if (matches(carriers, carriers[std::size_t(above)], step - 1)) {
                return true;
            }
            if (m_steps[step].isChild) {
                return false;
            }
        }
        return false;
    }

    QString m_text;
    std::vector<Step> m_steps;
};

constexpr char kExample[] = "/examples/own-service/hooks.qss";

bool hasColor(const QImage& picture, const QColor& color)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

QString contentOf(const char* path)
{
    QFile file(QLatin1String(SOURCE_DIR) + QLatin1String(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The selectors in the first column of the document's tables of hooks.
QStringList toldSelectors()
{
    const QString document = contentOf("/docs/embedding.md");
    const int begin = document.indexOf(QStringLiteral("\n### Hooks\n"));
    const int end = document.indexOf(QRegularExpression(QStringLiteral("\n##+ ")), begin + 1);
    static const QRegularExpression row(QStringLiteral("^\\| `([^`]+)` \\|"),
                                        QRegularExpression::MultilineOption);
    QStringList told;
    for (auto rows = row.globalMatch(document.mid(begin, end - begin)); rows.hasNext();) {
        told.append(rows.next().captured(1));
    }
    return told;
}

/// The selectors of all rules of the example sheet.
QStringList exampleSelectors()
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression rule(QStringLiteral("([^{}]+)\\{[^}]*\\}"));
    QStringList selectors;
    for (auto rules = rule.globalMatch(contentOf(kExample).remove(comment)); rules.hasNext();) {
        selectors += rules.next().captured(1).split(QLatin1Char(','));
    }
    return selectors;
}

Walk walkThroughAll()
{
    Walk walk;
    RecordingService::instance().reset();
    {
        const ClockAfterStart clock;
        const EditorWindow empty;
        walk.add(empty.dialog);
    }
    {
        ShownEditor editor;
        walk.add(editor.dialog());
    }
    ChooserFixture fixture;
    fixture.setPrograms({entry(1), entry(2)});
    fixture.openExisting({[&walk](ChooserWindow& chooser) {
        chooser.openCount(0);
        walk.add(*chooser.frame());
        chooser.withContextMenu(0, [&walk](QMenu& menu) { walk.add(menu); });
        // The button of the scale tells another state.
        chooser.frame()->findChild<QPushButton*>(QStringLiteral("ButtonScale"))->click();
        walk.add(*chooser.frame());
        chooser.cancel();
    }});
    for (const int type :
         {trel::widgets::TipDialog::Notice, trel::widgets::TipDialog::Confirmation}) {
        const trel::widgets::TipDialog prompt(type);
        walk.add(prompt);
    }
    walk.add(initProcess());
    return walk;
}

} // namespace

/// The table of hooks in the document about embedding, and the style sheet that uses them.
class tst_StyleHookTable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyHookThatIsToldIsThere();
    void everyHookThatIsThereIsTold();
    void everyRuleOfTheExampleFindsAWidget();
    void theExampleIsRead();
    void theStateOfAPlanFollowsAtOnce();

private:
    std::vector<Carrier> m_carriers;
};

void tst_StyleHookTable::initTestCase()
{
    m_carriers = walkThroughAll().carriers;
    QVERIFY(m_carriers.size() > 100);
    QVERIFY(toldSelectors().size() > 40);
    QVERIFY(exampleSelectors().size() > 20);
}

void tst_StyleHookTable::everyHookThatIsToldIsThere()
{
    QStringList missing;
    for (const QString& text : toldSelectors()) {
        const Selector selector(text);
        if (!selector.isValid() || !selector.matchesAny(m_carriers)) {
            missing.append(text);
        }
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

void tst_StyleHookTable::everyHookThatIsThereIsTold()
{
    std::vector<Compound> told;
    for (const QString& text : toldSelectors()) {
        told.emplace_back(text);
    }
    QStringList missing;
    for (const Carrier& carrier : m_carriers) {
        std::vector<const Compound*> own;
        for (const Compound& compound : told) {
            if (compound.matches(carrier)) {
                own.push_back(&compound);
            }
        }
        if (!carrier.name.isEmpty() &&
            std::none_of(own.begin(), own.end(), [&carrier](const Compound* compound) {
                return compound->name == carrier.name;
            })) {
            missing.append(carrier.types.first() + QLatin1Char('#') + carrier.name);
        }
        for (const auto& [property, value] : carrier.properties) {
            if (std::none_of(own.begin(), own.end(), [&name = property](const Compound* compound) {
                    return compound->properties.count(name) > 0;
                })) {
                missing.append(
                    QStringLiteral("%1[%2=\"%3\"]").arg(carrier.types.first(), property, value));
            }
        }
    }
    missing.sort();
    missing.removeDuplicates();
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

void tst_StyleHookTable::everyRuleOfTheExampleFindsAWidget()
{
    QStringList idle;
    for (const QString& text : exampleSelectors()) {
        const Selector selector(text);
        if (!selector.isValid() || !selector.matchesAny(m_carriers)) {
            idle.append(selector.text());
        }
    }
    QVERIFY2(idle.isEmpty(), qPrintable(idle.join(QLatin1Char('\n'))));
}

void tst_StyleHookTable::theExampleIsRead()
{
    ShownEditor editor;
    const MessageLog log;
    qApp->setStyleSheet(contentOf(kExample));
    QCoreApplication::processEvents();
    const QImage seen = drawn(editor.dialog());
    qApp->setStyleSheet(QString());
    QCOMPARE(log.warnings().filter(QStringLiteral("style")), QStringList());
    for (const char* color : {"#2f4858", "#33658a", "#dfe7ec", "#fbe3df", "#e2f1e7"}) {
        QVERIFY2(hasColor(seen, QColor(QLatin1String(color))), color);
    }
}

void tst_StyleHookTable::theStateOfAPlanFollowsAtOnce()
{
    qApp->setStyleSheet(QStringLiteral("QLabel[state=\"collision\"] { background: #ff00ff; }"
                                       "QLabel[state=\"free\"] { background: #00ffff; }"));
    QLabel label;
    label.show();
    const PlanStateLook look;
    for (const bool collides : {false, true, false}) {
        look.show(label, collides);
        const QImage seen = drawn(label);
        QCOMPARE(hasColor(seen, Qt::magenta), collides);
        QCOMPARE(hasColor(seen, Qt::cyan), !collides);
    }
    qApp->setStyleSheet(QString());
}

TREL_TEST(tst_StyleHookTable, QApplication)
#include "tst_StyleHookTable.moc"
