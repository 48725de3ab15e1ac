#include "PseudoLanguage.h"

#include "scheduleControlUI.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

namespace {

const QString kName = QStringLiteral("eo_EO");

/// Of XML.
QString unescaped(QString text)
{
    return text.replace(QLatin1String("&lt;"), QLatin1String("<"))
        .replace(QLatin1String("&gt;"), QLatin1String(">"))
        .replace(QLatin1String("&quot;"), QLatin1String("\""))
        .replace(QLatin1String("&apos;"), QLatin1String("'"))
        .replace(QLatin1String("&amp;"), QLatin1String("&"));
}

} // namespace

PseudoLanguage::PseudoLanguage(trel::mediadispatch::scheduleControlUI& editor, Change change)
    : m_change(change)
{
    editor.loadLanguageFiles({compileEditorTexts()});
    editor.switchLanguage(kName);
    QCoreApplication::installTranslator(this);
    QCoreApplication::processEvents();
    editor.translate();
}

PseudoLanguage::~PseudoLanguage()
{
    QCoreApplication::removeTranslator(this);
}

QString PseudoLanguage::longer(const QString& text)
{
    // The patterns of a file dialog are no text.
    static const QRegularExpression filter(QStringLiteral("^(.*)( \\(\\*[^()]*\\))$"));
    if (text.contains(QLatin1String(";;"))) {
        const int end = text.indexOf(QLatin1String(";;"));
        return longer(text.left(end)) + QStringLiteral(";;") + longer(text.mid(end + 2));
    }
    if (const QRegularExpressionMatch match = filter.match(text); match.hasMatch()) {
        return longer(match.captured(1)) + match.captured(2);
    }
    QString more;
    while (more.size() < (text.size() + 1) / 2) {
        more += QStringLiteral(" more");
    }
    return QStringLiteral("⟦") + text + more.left((text.size() + 1) / 2) + QStringLiteral("⟧");
}

QString PseudoLanguage::translate(const char* context, const char* source,
                                  const char* /*disambiguation*/, int /*n*/) const
{
    // The toolkit asks for the direction of writing in this way.
    const bool isText = QLatin1String(context) != QLatin1String("QApplication") &&
                        QLatin1String(context) != QLatin1String("QGuiApplication");
    return isText ? m_change(QString::fromUtf8(source)) : QString();
}

QString PseudoLanguage::compileEditorTexts() const
{
    QFile english(QStringLiteral(LANGUAGE_SOURCE_DIR "/en_US.ts"));
    if (!english.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(english.fileName()));
    }
    QString texts = QString::fromUtf8(english.readAll());
    texts.replace(QStringLiteral("language=\"en_US\""),
                  QStringLiteral("language=\"%1\"").arg(kName));
    QString made;
    int done = 0;
    const QRegularExpression translation(QStringLiteral("<translation>([^<]*)</translation>"));
    QRegularExpressionMatchIterator matches = translation.globalMatch(texts);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        made += texts.mid(done, match.capturedStart(1) - done) +
                m_change(unescaped(match.captured(1))).toHtmlEscaped();
        done = match.capturedEnd(1);
    }
    made += texts.mid(done);
    QFile source(m_folder.filePath(QStringLiteral("pseudo.ts")));
    const QString compiled = m_folder.filePath(QStringLiteral("pseudo.qm"));
    if (!source.open(QIODevice::WriteOnly) || source.write(made.toUtf8()) < 0) {
        qFatal("cannot write %s", qPrintable(source.fileName()));
    }
    source.close();
    const int status =
        QProcess::execute(QStringLiteral(LRELEASE), {QStringLiteral("-silent"), source.fileName(),
                                                     QStringLiteral("-qm"), compiled});
    if (status != 0) {
        qFatal("lrelease failed");
    }
    return compiled;
}
