#include "EditorRun.h"

#include <QLayout>

using namespace trel::desktop;

EditorRun::EditorRun(const QString& name, const QString& language)
    : m_name(name + QLatin1Char('-') + language)
{
    editor->setCheckBoxImagePath(QStringLiteral(":/qss/img/checked.svg"),
                                 QStringLiteral(":/qss/img/unchecked.svg"));
    languages.select(language);
    const QString error = window.openDatabase(database, QStringLiteral(DEMONSTRATION));
    if (!error.isEmpty()) {
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    }
    showEditor();
}

QVector<CardOnScreen> EditorRun::cards() const
{
    const auto* const list = editor->findChild<QWidget*>(QStringLiteral("widget"));
    QVector<CardOnScreen> found;
    for (int i = 0; i < list->layout()->count(); ++i) {
        if (QWidget* const card = list->layout()->itemAt(i)->widget()) {
            found.append(CardOnScreen(*card));
        }
    }
    return found;
}

QStringList EditorRun::lines() const
{
    QStringList lines;
    for (const CardOnScreen& card : cards()) {
        lines.append(card.lines());
    }
    return lines;
}

void EditorRun::press(const char* button) const
{
    click(*editor->findChild<QPushButton*>(QLatin1String(button)));
}

void EditorRun::addTask() const
{
    untilACardComes([this] { press("pushButtonAddTask"); });
}

void EditorRun::copyTask(int index) const
{
    untilACardComes([this, index] { card(index).copyTask(); });
}

void EditorRun::openAgain()
{
    host.close();
    const QString error = window.openDatabase(database);
    if (!error.isEmpty()) {
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    }
    showEditor();
}

void EditorRun::picture(QWidget& shown, const QString& moment) const
{
    const QDir pictures(QStringLiteral(PICTURES));
    const QString file =
        pictures.filePath(m_name + QLatin1Char('-') + moment + QStringLiteral(".png"));
    QVERIFY(pictures.mkpath(QStringLiteral(".")) && shown.grab().save(file));
}
