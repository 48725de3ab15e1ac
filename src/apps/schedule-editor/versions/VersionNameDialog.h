#pragma once

#include <QDialog>
#include <QString>

class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace trel::mediadispatch {
struct ScheduleVersion;
}

namespace trel::desktop::versions {

/// Asks for the name and the note of a version. Nothing is accepted that a version cannot have.
class VersionNameDialog : public QDialog
{
    Q_OBJECT

public:
    VersionNameDialog(const trel::mediadispatch::ScheduleVersion& version, QWidget* parent);

    QString name() const;
    QString note() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void check();

    qint64 m_number;
    QLabel* m_nameLabel;
    QLineEdit* m_name;
    QLabel* m_noteLabel;
    QLineEdit* m_note;
    QLabel* m_fault;
    QDialogButtonBox* m_buttons;
};

} // namespace trel::desktop::versions
