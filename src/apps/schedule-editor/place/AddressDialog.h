#pragma once

#include <QDialog>
#include <QString>

class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace trel::desktop::place {

/// Asks for the address of a schedule on a server. Nothing is accepted that is none, and none with
/// a password; why not is told while it is typed.
class AddressDialog : public QDialog
{
    Q_OBJECT

public:
    /// Begins with an address, or with a text that shows the form of one.
    AddressDialog(const QString& address, QWidget* parent);

    /// In its usual form; empty while what is typed is none.
    QString address() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void check();

    QLabel* m_addressLabel;
    QLineEdit* m_address;
    QLabel* m_hint;
    QLabel* m_fault;
    QDialogButtonBox* m_buttons;
};

} // namespace trel::desktop::place
