#include "support/TextKeys.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFontMetrics>
#include <QSet>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QXmlStreamReader>
#include <QtTest>

using tessark::trans::Translator;

namespace {

struct Message
{
    QString context;
    QString key;
    QString comment;
    QString text;
    bool isFinished = false;
};

struct Catalogue
{
    QString language;
    QVector<Message> messages;
};

Message readMessage(QXmlStreamReader& xml, const QString& context)
{
    Message message;
    message.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.key = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            message.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            message.text = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

Catalogue readCatalogue(const QString& language)
{
    QFile file(QStringLiteral(LANGUAGE_SOURCE_DIR "/%1.ts").arg(language));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(file.fileName()));
    }
    Catalogue catalogue;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("TS")) {
            catalogue.language = xml.attributes().value(QStringLiteral("language")).toString();
        } else if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            catalogue.messages.append(readMessage(xml, context));
        }
    }
    if (xml.hasError()) {
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(xml.errorString()));
    }
    return catalogue;
}

QStringList sorted(QStringList lines)
{
    lines.sort();
    return lines;
}

/// One built language, and the font that its texts are measured in.
class Texts
{
public:
    explicit Texts(const QString& language)
    {
        m_isLoaded = m_translator.load(QStringLiteral(LANGUAGE_DIR "/%1.qm").arg(language));
        m_translator.switchLanguage(language);
    }

    bool isLoaded() const { return m_isLoaded; }

    QString operator()(const char* key) const
    {
        return translate(m_translator, QStringLiteral("SheduleWidgets"), QStringLiteral("Widget"),
                         QString::fromLatin1(key));
    }

    QString operator()(const QString& key) const { return (*this)(key.toLatin1().constData()); }

private:
    Translator m_translator;
    bool m_isLoaded = false;
};

int widthOf(const QString& text, int pixelSize)
{
    QFont font = QApplication::font();
    font.setPixelSize(pixelSize);
    return QFontMetrics(font).horizontalAdvance(text);
}

/// What a cell leaves for its text.
int roomInCell(int width)
{
    const int margin = QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    return width - 2 * margin;
}

/// What a combo box of this width leaves for its text.
int roomInBox(int width)
{
    QComboBox box;
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.rect = QRect(0, 0, width, 24);
    return box.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
        .width();
}

const QStringList& dayKeys()
{
    static const QStringList keys = {
        QStringLiteral("szEveryDayStr"), QStringLiteral("szMondayStr"),
        QStringLiteral("szTuesdayStr"),  QStringLiteral("szWednesdayStr"),
        QStringLiteral("szThursdayStr"), QStringLiteral("szFridayStr"),
        QStringLiteral("szSaturdayStr"), QStringLiteral("szSundayStr")};
    return keys;
}

const QStringList& menuKeys()
{
    static const QStringList keys = {
        QStringLiteral("zhCutCurrentProg"), QStringLiteral("zhDelayInsert"),
        QStringLiteral("zhProgMoveUp"), QStringLiteral("zhProgMoveDown")};
    return keys;
}

void languageRows()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN");
    QTest::newRow("English") << QStringLiteral("en_US");
}

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void keyListIsComplete();
    void sourceHoldsEveryKeyOnce_data() { languageRows(); }
    void sourceHoldsEveryKeyOnce();
    void sourceIsFinished_data() { languageRows(); }
    void sourceIsFinished();
    void builtFileHoldsWhatTheSourceSays_data() { languageRows(); }
    void builtFileHoldsWhatTheSourceSays();
    void listsEveryBuiltFile();
    void textsThatAreComparedDiffer_data() { languageRows(); }
    void textsThatAreComparedDiffer();
    void listedTextsHoldNoSeparator_data() { languageRows(); }
    void listedTextsHoldNoSeparator();
    void textsHoldNoPlaceMarker_data() { languageRows(); }
    void textsHoldNoPlaceMarker();
    void composedTextsReadWell_data();
    void composedTextsReadWell();
    void captionsFitTheirCells_data() { languageRows(); }
    void captionsFitTheirCells();
    void choicesFitTheirBoxes_data() { languageRows(); }
    void choicesFitTheirBoxes();
    void hintsFitTheChooser_data() { languageRows(); }
    void hintsFitTheChooser();
};

void TestLanguages::keyListIsComplete()
{
    QCOMPARE(textKeys().size(), 56);
    QCOMPARE(QSet<QString>(textKeys().begin(), textKeys().end()).size(), 56);
}

void TestLanguages::sourceHoldsEveryKeyOnce()
{
    QFETCH(QString, language);
    const Catalogue catalogue = readCatalogue(language);
    QCOMPARE(catalogue.language, language);
    QStringList keys;
    for (const Message& message : catalogue.messages) {
        keys.append(message.key);
        QCOMPARE(message.context, QStringLiteral("SheduleWidgets"));
        QCOMPARE(message.comment, QStringLiteral("Widget"));
    }
    QCOMPARE(sorted(keys), sorted(textKeys()));
}

void TestLanguages::sourceIsFinished()
{
    QFETCH(QString, language);
    for (const Message& message : readCatalogue(language).messages) {
        QVERIFY2(message.isFinished, qPrintable(message.key));
        QVERIFY2(!message.text.trimmed().isEmpty(), qPrintable(message.key));
    }
}

void TestLanguages::builtFileHoldsWhatTheSourceSays()
{
    QFETCH(QString, language);
    const Texts text(language);
    QVERIFY(text.isLoaded());
    for (const Message& message : readCatalogue(language).messages) {
        QCOMPARE(text(message.key), message.text);
    }
}

void TestLanguages::listsEveryBuiltFile()
{
    const QStringList files = QStringLiteral(LANGUAGE_FILES).split(QLatin1Char('|'));
    QCOMPARE(files.size(), 2);
    for (const QString& file : files) {
        Translator translator;
        QVERIFY2(translator.load(file), qPrintable(file));
    }
}

void TestLanguages::textsThatAreComparedDiffer()
{
    QFETCH(QString, language);
    const Texts text(language);
    for (const QStringList& keys : {dayKeys(), menuKeys()}) {
        QSet<QString> texts;
        for (const QString& key : keys) {
            texts.insert(text(key));
        }
        QCOMPARE(texts.size(), keys.size());
    }
}

void TestLanguages::listedTextsHoldNoSeparator()
{
    QFETCH(QString, language);
    const Texts text(language);
    for (const QString& key : dayKeys()) {
        QVERIFY2(!text(key).contains(QLatin1Char(',')), qPrintable(key));
    }
    QVERIFY(!text("szInvalidStr").contains(QLatin1Char(',')));
    QVERIFY(!text("szProgNullStr").contains(QLatin1Char(',')));
}

void TestLanguages::textsHoldNoPlaceMarker()
{
    QFETCH(QString, language);
    const Texts text(language);
    for (const QString& key : textKeys()) {
        QVERIFY2(!text(key).contains(QLatin1Char('%')), qPrintable(key));
        // A button would swallow it and make a shortcut of the letter behind it.
        QVERIFY2(!text(key).contains(QLatin1Char('&')), qPrintable(key));
    }
}

void TestLanguages::composedTextsReadWell_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("task");
    QTest::addColumn<QString>("validity");
    QTest::addColumn<QString>("plan");
    QTest::addColumn<QString>("overlap");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN") << QStringLiteral("播放任务3    ")
                             << QStringLiteral("有效期从") << QStringLiteral("  计划1:")
                             << QStringLiteral(
                                    "播放任务1,播放任务9 的有效期有重叠，请修改日期后重试");
    QTest::newRow("English") << QStringLiteral("en_US") << QStringLiteral("Play task 3    ")
                             << QStringLiteral("Valid from") << QStringLiteral("  No.1:")
                             << QStringLiteral("Play task 1,Play task 9 overlap in their validity. "
                                               "Please change the dates and try again.");
}

void TestLanguages::composedTextsReadWell()
{
    QFETCH(QString, language);
    QFETCH(QString, task);
    QFETCH(QString, validity);
    QFETCH(QString, plan);
    QFETCH(QString, overlap);
    const Texts text(language);
    const auto taskName = [&](int id) {
        return QStringLiteral("%1%2").arg(text("zhPlayTaskStr")).arg(id);
    };
    QCOMPARE(taskName(3) + QStringLiteral("    "), task);
    QCOMPARE(text("zhEffectiveStr") + text("zhFromStr"), validity);
    QCOMPARE(QStringLiteral("  %1%2:").arg(text("zhPlanTimeStr")).arg(1), plan);
    QCOMPARE(taskName(1) + QLatin1Char(',') + taskName(9) + QLatin1Char(' ') +
                 text("zhSegConflictStr"),
             overlap);
}

void TestLanguages::captionsFitTheirCells()
{
    QFETCH(QString, language);
    struct Cell
    {
        const char* key;
        int width;
    };
    const Texts text(language);
    for (const int size : {12, 13}) {
        for (const Cell& cell :
             {Cell{"zhModeStr", 50}, Cell{"zhFromStr", 45}, Cell{"zhToStr", 24},
              Cell{"zhfrequencyStr", 50}, Cell{"szDateStr", 40}, Cell{"zhEndActionStr", 64},
              Cell{"zhconflictStr", 60}, Cell{"zhnormalStr", 60}, Cell{"zhCheckNumber", 50},
              Cell{"zhPlayCounts", 94}, Cell{"szProgramLstStr", 110}}) {
            const int width = widthOf(text(cell.key), size);
            QVERIFY2(width <= roomInCell(cell.width),
                     qPrintable(QStringLiteral("%1: %2 px at size %3")
                                    .arg(QLatin1String(cell.key))
                                    .arg(width)
                                    .arg(size)));
        }
    }
    const QString plan = text("zhPlanTimeStr");
    QVERIFY(widthOf(QStringLiteral("  ") + plan + QStringLiteral("99:"), 12) <= roomInCell(60));
    QVERIFY(widthOf(QStringLiteral("   ") + plan + QStringLiteral("9:"), 13) <= roomInCell(60));
}

void TestLanguages::choicesFitTheirBoxes()
{
    QFETCH(QString, language);
    const Texts text(language);
    for (const int size : {12, 13}) {
        for (const char* key : {"zhTimeStr", "zhfrequencyStr"}) {
            QVERIFY2(widthOf(text(key), size) <= roomInBox(66), key);
        }
        for (const QString& key : dayKeys()) {
            QVERIFY2(widthOf(text(key), size) <= roomInBox(100), qPrintable(key));
        }
        for (const char* key : {"zhBlackScreen", "zhFreezeCurrentFrame"}) {
            QVERIFY2(widthOf(text(key), size) <= roomInBox(120), key);
        }
    }
}

void TestLanguages::hintsFitTheChooser()
{
    QFETCH(QString, language);
    const Texts text(language);
    // The frame is 610 wide; the margins, the warning sign and the two buttons take the rest.
    for (const char* key : {"zhOnlyOne", "zhCutProgWarnning", "zhOverTimeTips"}) {
        QVERIFY2(widthOf(text(key), 13) <= 400, key);
    }
}

QTEST_MAIN(TestLanguages)
#include "tst_Languages.moc"
