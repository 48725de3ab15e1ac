#include "LanguageNames.h"
#include "support/TextKeys.h"
#include "tstranslate/Translator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
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

/// One built language.
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
    const QStringList names = languages();
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
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
    void hintNamesTheButtonItSpeaksOf_data();
    void hintNamesTheButtonItSpeaksOf();
    void textsStartAndEndAsTheyStand_data();
    void textsStartAndEndAsTheyStand();
    void composedTextsReadWell_data();
    void composedTextsReadWell();
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
    QCOMPARE(files.size(), 10);
    QCOMPARE(languages().size(), 10);
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
    const auto row = [](const char* language, const char* task, const char* validity,
                        const char* plan, const char* overlap) {
        QTest::newRow(language) << QString::fromLatin1(language) << QString::fromUtf8(task)
                                << QString::fromUtf8(validity) << QString::fromUtf8(plan)
                                << QString::fromUtf8(overlap);
    };
    row("de_DE", "Auftrag 3    ", "Gültig von", "  Plan 1:",
        "Auftrag 1,Auftrag 9 überschneiden sich in ihrer Gültigkeit. Bitte ändern Sie die "
        "Zeiträume und versuchen Sie es erneut.");
    row("en_US", "Play task 3    ", "Valid from", "  Plan 1:",
        "Play task 1,Play task 9 have overlapping validity periods. Change the dates and try "
        "again.");
    row("es_ES", "Tarea 3    ", "Validez: de", "  Plan 1:",
        "Tarea 1,Tarea 9 tienen periodos de validez que se solapan. Cambie las fechas y vuelva a "
        "intentarlo.");
    row("fr_FR", "Tâche 3    ", "Validité\u00a0: de", "  N°\u00a01:",
        "Tâche 1,Tâche 9 ont des périodes de validité qui se chevauchent. Modifiez les dates, puis "
        "réessayez.");
    row("ja_JP", "再生タスク3    ", "有効期間 開始", "  計画1:",
        "再生タスク1,再生タスク9 "
        "の有効期間が重複しています。日付を変更して、もう一度お試しください。");
    row("ko_KR", "재생 작업 3    ", "유효 기간 시작", "  계획1:",
        "재생 작업 1,재생 작업 9 간 유효 기간이 겹칩니다. 날짜를 변경한 후 다시 시도하세요.");
    row("pt_BR", "Tarefa 3    ", "Validade: de", "  Nº 1:",
        "Tarefa 1,Tarefa 9 têm períodos de validade que se sobrepõem. Altere as datas e tente "
        "novamente.");
    row("ru_RU", "Задание 3    ", "Действует с", "  №\u00a01:",
        "Задание 1,Задание 9 имеют пересекающиеся сроки действия. Измените даты и повторите "
        "попытку.");
    row("zh_CN", "播放任务3    ", "有效期从",
        "  计划1:", "播放任务1,播放任务9 的有效期有重叠，请修改日期后重试");
    row("zh_TW", "播放任務3    ", "有效期從",
        "  計畫1:", "播放任務1,播放任務9 的有效期重疊，請修改日期後再試一次");
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

void TestLanguages::hintNamesTheButtonItSpeaksOf_data()
{
    languageRows();
}

void TestLanguages::hintNamesTheButtonItSpeaksOf()
{
    QFETCH(QString, language);
    const Texts text(language);
    QVERIFY2(text("zhNoPlayTask").contains(text("zhSchedulePlayStrAdd")),
             qPrintable(text("zhNoPlayTask")));
}

void TestLanguages::textsStartAndEndAsTheyStand_data()
{
    languageRows();
}

void TestLanguages::textsStartAndEndAsTheyStand()
{
    // What another text follows, or what follows another text, may carry a blank for it.
    const QStringList joined = {QStringLiteral("zhPlayTaskStr"), QStringLiteral("zhEffectiveStr"),
                                QStringLiteral("zhPlanTimeStr"), QStringLiteral("szInvalidStr"),
                                QStringLiteral("szProgNullStr"), QStringLiteral("zhTotalDuration")};
    QFETCH(QString, language);
    const Texts text(language);
    for (const QString& key : textKeys()) {
        QVERIFY2(joined.contains(key) || text(key) == text(key).trimmed(), qPrintable(key));
        QVERIFY2(!text(key).contains(QStringLiteral("  ")), qPrintable(key));
    }
}

QTEST_GUILESS_MAIN(TestLanguages)
#include "tst_Languages.moc"
