#pragma once

#include <QObject>
#include <QStringList>

namespace trel::desktop {

/// Tells what has come about by itself, such as the end of an import: one notice after the other,
/// and none over a question or a dialog that the operator is at.
class PendingNotices : public QObject
{
    Q_OBJECT

public:
    /// Belongs to a window of the application that modal windows block.
    explicit PendingNotices(QWidget& window);

    /// Shows the text, and returns when it has been read. Where a modal window stands, returns at
    /// once, and the text is shown when none is left.
    void tell(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tellNext();

    QStringList m_texts;
};

} // namespace trel::desktop
