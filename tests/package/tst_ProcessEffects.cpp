#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

/// Calls that reach beyond the object which makes them. What is in the table of the document is
/// allowed, and the others are looked for so that they do not come in unseen.
const QStringList& calls()
{
    static const QStringList names{
        // Told in the document.
        QStringLiteral("qRegisterMetaType"), QStringLiteral("qAddPostRoutine"),
        QStringLiteral("std::atexit"), QStringLiteral("posix_spawn"), QStringLiteral("waitpid"),
        QStringLiteral("QThread"), QStringLiteral("qWarning"), QStringLiteral("qDebug"),
        QStringLiteral("QAccessible::installFactory"),
        // What a guest leaves alone.
        QStringLiteral("qInfo"), QStringLiteral("qCritical"), QStringLiteral("qFatal"),
        QStringLiteral("qInstallMessageHandler"), QStringLiteral("setFilterRules"),
        QStringLiteral("setlocale"), QStringLiteral("QLocale::setDefault"),
        QStringLiteral("qputenv"), QStringLiteral("setenv"), QStringLiteral("umask"),
        QStringLiteral("sigaction"), QStringLiteral("std::signal"), QStringLiteral("setrlimit"),
        QStringLiteral("prctl"), QStringLiteral("mallopt"), QStringLiteral("av_log_set_level"),
        QStringLiteral("fork"), QStringLiteral("std::thread"), QStringLiteral("QtConcurrent"),
        QStringLiteral("qApp"), QStringLiteral("installTranslator"),
        QStringLiteral("QApplication::setStyle"), QStringLiteral("QApplication::setPalette"),
        QStringLiteral("QApplication::setFont"), QStringLiteral("setOverrideCursor"),
        QStringLiteral("QCoreApplication::setAttribute"),
        QStringLiteral("QCoreApplication::setApplicationName"),
        QStringLiteral("QCoreApplication::setOrganizationName"), QStringLiteral("setCurrent(")};
    return names;
}

QString contentOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(path));
    }
    return QString::fromUtf8(file.readAll());
}

/// Code without its comments, whose words are free.
QString codeOf(const QString& path)
{
    static const QRegularExpression comment(QStringLiteral("//[^\n]*"));
    return contentOf(path).remove(comment);
}

bool isCalled(const QString& call, const QString& code)
{
    const QRegularExpression word(QStringLiteral("(?<![\\w:>.])(::)?") +
                                  QRegularExpression::escape(call) + QStringLiteral("(?!\\w)"));
    return word.match(code).hasMatch();
}

} // namespace

/// What the document about embedding says that the libraries do to their process.
class tst_ProcessEffects : public QObject
{
    Q_OBJECT

private slots:
    void areToldInTheDocument();
};

void tst_ProcessEffects::areToldInTheDocument()
{
    const QString document = contentOf(QStringLiteral(SOURCE_DIR "/docs/embedding.md"));
    QStringList told;
    static const QRegularExpression row(QStringLiteral("^\\| `([^`]+)` \\|"),
                                        QRegularExpression::MultilineOption);
    const int table = document.indexOf(QStringLiteral("## What the libraries do to their process"));
    QVERIFY(table > 0);
    for (auto rows = row.globalMatch(document, table); rows.hasNext();) {
        told.append(rows.next().captured(1));
    }
    QSet<QString> found;
    for (const char* library :
         {"trelprogramschedule", "trelprogramschedulewidgets", "trelwidgets", "tstranslate"}) {
        QDirIterator files(QStringLiteral(SOURCE_DIR "/src/libs/") + QLatin1String(library),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString code = codeOf(files.next());
            for (const QString& call : calls()) {
                if (!found.contains(call) && code.contains(call) && isCalled(call, code)) {
                    found.insert(call);
                }
            }
        }
    }
    QStringList calledNames = found.values();
    calledNames.sort();
    told.sort();
    QCOMPARE(calledNames, told);
}

QTEST_GUILESS_MAIN(tst_ProcessEffects)
#include "tst_ProcessEffects.moc"
