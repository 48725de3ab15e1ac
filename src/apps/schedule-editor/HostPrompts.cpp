#include "HostPrompts.h"

#include "fit/FileDialogFit.h"
#include "look/ThemeImages.h"
#include "memory/LastFolders.h"
#include "trelwidgets/TipDialog.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>

namespace trel::desktop {

using trel::widgets::TipDialog;

namespace {

/// Frees itself after its run. It has a title of its own: with that of the window behind it, nobody
/// who only hears the title would know that there is another window. It names the picture of
/// the prompt as well.
TipDialog* promptOf(TipDialog::TipType type, const QString& text)
{
    auto* prompt = new TipDialog(type);
    prompt->setTipText(text);
    prompt->setWindowTitle(type == TipDialog::Notice
                               ? QCoreApplication::translate("HostPrompts", "Message")
                               : prompts::questionTitle());
    return prompt;
}

QString folderOf(const QWidget* parent, const QString& kind)
{
    const LastFolders* const folders = LastFolders::of(parent);
    return folders == nullptr ? QString() : folders->folder(kind);
}

void remember(const QWidget* parent, const QString& kind, const QString& path)
{
    LastFolders* const folders = LastFolders::of(parent);
    if (folders != nullptr && !path.isEmpty()) {
        folders->remember(kind, path);
    }
}

/// Shows what the names of filters say, whose patterns are long, and returns what was chosen.
QStringList choose(QFileDialog& dialog)
{
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    fit::fitFileDialog(dialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

} // namespace

namespace prompts {

QString questionTitle()
{
    return QCoreApplication::translate("HostPrompts", "Question");
}

void notice(const QString& text)
{
    TipDialog* const prompt = promptOf(TipDialog::Notice, text);
    prompt->setBtnText(QCoreApplication::translate("HostPrompts", "OK"), QString(), QString());
    prompt->run();
}

void about(const QString& title, const QString& text)
{
    TipDialog* const prompt = promptOf(TipDialog::Notice, text);
    prompt->setWindowTitle(title);
    prompt->setSignIcon(look::imageIcon(QStringLiteral("schedule-editor"), QColor()));
    prompt->setBtnText(QCoreApplication::translate("HostPrompts", "OK"), QString(), QString());
    prompt->run();
}

int confirm(const QString& text, const QString& first, const QString& second, const QString& third,
            int enterButton)
{
    TipDialog* const prompt = promptOf(TipDialog::Confirmation, text);
    prompt->setBtnText(first, second, third);
    prompt->setEnterButton(enterButton);
    return prompt->run().button;
}

bool confirmLoss(const QString& text, const QString& first, const QString& second)
{
    constexpr int kFirst = 1;
    constexpr int kSecond = 2;
    return confirm(text, first, second, QString(), kSecond) == kFirst;
}

QString openFileName(QWidget* parent, const char* kind, const QString& title, const QString& filter,
                     const QString& folder)
{
    const QString remembered = folderOf(parent, QLatin1String(kind));
    QFileDialog dialog(parent, title, remembered.isEmpty() ? folder : remembered, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    QString file = choose(dialog).value(0);
    remember(parent, QLatin1String(kind), file);
    return file;
}

QStringList openFileNames(QWidget* parent, const char* kind, const QString& title,
                          const QString& filter)
{
    QFileDialog dialog(parent, title, folderOf(parent, QLatin1String(kind)), filter);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    QStringList files = choose(dialog);
    remember(parent, QLatin1String(kind), files.value(0));
    return files;
}

QString openFolder(QWidget* parent, const char* kind, const QString& title)
{
    QFileDialog dialog(parent, title, folderOf(parent, QLatin1String(kind)));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    QString folder = choose(dialog).value(0);
    remember(parent, QLatin1String(kind), folder);
    return folder;
}

namespace {

/// Whether nothing is lost with a file of this name, or the operator gives it up.
bool mayWrite(const QString& file)
{
    if (file.isEmpty() || !QFileInfo::exists(file)) {
        return true;
    }
    const QString question =
        QCoreApplication::translate("HostPrompts", "The file %1 exists already. Replace it?");
    return confirmLoss(question.arg(QFileInfo(file).fileName()),
                       QCoreApplication::translate("HostPrompts", "Replace"),
                       QCoreApplication::translate("HostPrompts", "Cancel"));
}

} // namespace

QString saveFileName(QWidget* parent, const QString& title, const QString& filter,
                     const QString& suffix, Existing existing)
{
    QFileDialog dialog(parent, title, folderOf(parent, suffix), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    // The question of the toolkit lets Enter write over the file.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    QString file = choose(dialog).value(0);
    while (existing == Existing::IsAskedAbout && !mayWrite(file)) {
        // The name is there to be changed.
        dialog.selectFile(file);
        file = choose(dialog).value(0);
    }
    remember(parent, suffix, file);
    return file;
}

} // namespace prompts

} // namespace trel::desktop
