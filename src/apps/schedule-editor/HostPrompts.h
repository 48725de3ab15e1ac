#pragma once

#include <QString>
#include <QStringList>

#include <array>

class QWidget;

namespace trel::desktop {

/// The few questions that the host asks, in the editor's own prompt. All block until answered.
namespace prompts {

/// The title of a question that is asked in a window of its own.
QString questionTitle();

/// Tells the operator something.
void notice(const QString& text);

/// Tells what the program is, with its own picture.
void about(const QString& title, const QString& text);

/// Asks; the result is 1, 2 or 3 for the buttons in order, and 0 for any other way out. Enter
/// presses the button with the given number, which takes nothing away.
int confirm(const QString& text, const QString& first, const QString& second,
            const QString& third = QString(), int enterButton = 1);

/// Asks before something is taken away; true when the first button was pressed. Enter presses the
/// second one.
bool confirmLoss(const QString& text, const QString& first, const QString& second);

/// What becomes of a file that exists when its name is chosen: the operator is asked whether it may
/// be replaced, and chooses again where it may not, or the caller tells that it may not.
enum class Existing { IsAskedAbout, IsTold };

/// The kinds of files whose folders are remembered, beside those that files are written with, which
/// have the name of their suffix.
inline constexpr char kDatabases[] = "db";
inline constexpr char kSchedules[] = "json";
inline constexpr char kMedia[] = "media";
/// All of them; of no other one a folder is known at the next start.
inline constexpr std::array<const char*, 3> kKinds = {kDatabases, kSchedules, kMedia};

/// Ask for a file to read, for several of them, or for a folder; empty when the operator thinks
/// better of it. A dialog begins where the last one of its kind ended, or else in a folder that is
/// given.
QString openFileName(QWidget* parent, const char* kind, const QString& title, const QString& filter,
                     const QString& folder = QString());
QStringList openFileNames(QWidget* parent, const char* kind, const QString& title,
                          const QString& filter);
QString openFolder(QWidget* parent, const char* kind, const QString& title);

/// Asks for a file to write; empty when the operator thinks better of it. The suffix is added to a
/// name without one, and is the kind of the file.
QString saveFileName(QWidget* parent, const QString& title, const QString& filter,
                     const QString& suffix, Existing existing = Existing::IsAskedAbout);

} // namespace prompts

} // namespace trel::desktop
