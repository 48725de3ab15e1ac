#include "place/AddressDialog.h"

#include "ProblemWords.h"
#include "trelprogramschedule/store/StoreEngines.h"
#include "trelprogramschedule/store/StorePlace.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop::place {

namespace {

/// Longer ones name nothing.
constexpr int kLongestAddress = 1000;
constexpr int kWidth = 560;

} // namespace

AddressDialog::AddressDialog(const QString& address, QWidget* parent)
    : QDialog(parent)
    , m_addressLabel(new QLabel(this))
    , m_address(new QLineEdit(
          address.isEmpty() ? StorePlace::scheme() + QStringLiteral("//") : address, this))
    , m_hint(new QLabel(this))
    , m_fault(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("addressDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_address->setObjectName(QStringLiteral("address"));
    m_address->setMaxLength(kLongestAddress);
    m_address->setLayoutDirection(Qt::LeftToRight);
    m_addressLabel->setBuddy(m_address);
    m_fault->setObjectName(QStringLiteral("addressFault"));
    for (QLabel* label : {m_addressLabel, m_hint, m_fault}) {
        label->setTextFormat(Qt::PlainText);
    }
    m_hint->setWordWrap(true);
    m_fault->setWordWrap(true);
    QPushButton* const open = m_buttons->button(QDialogButtonBox::Open);
    open->setObjectName(QStringLiteral("addressOpen"));
    open->setProperty("style", QStringLiteral("general"));

    auto* fields = new QFormLayout;
    fields->addRow(m_addressLabel, m_address);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(m_hint);
    layout->addWidget(m_fault);
    layout->addStretch();
    layout->addWidget(m_buttons);
    // Both are put in their places: where one alone is, the toolkit leaves out its neighbor.
    setTabOrder(m_address, m_buttons->button(QDialogButtonBox::Cancel));
    setTabOrder(m_buttons->button(QDialogButtonBox::Cancel), open);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_address, &QLineEdit::textChanged, this, &AddressDialog::check);
    retranslate();
    resize(kWidth, sizeHint().height());
}

QString AddressDialog::address() const
{
    const QString typed = m_address->text().trimmed();
    return faultOfAddress(typed) ? QString() : StorePlace(typed).text();
}

void AddressDialog::check()
{
    const Fault fault = faultOfAddress(m_address->text().trimmed());
    m_fault->setText(problems::sentence(fault));
    m_address->setAccessibleDescription(m_fault->text());
    m_buttons->button(QDialogButtonBox::Open)->setEnabled(!fault);
}

void AddressDialog::retranslate()
{
    setWindowTitle(tr("Open from a server"));
    m_addressLabel->setText(tr("Address"));
    m_hint->setText(tr("Where the server asks for a password, it is read from the password file of "
                       "the server's programs (~/.pgpass)."));
    check();
}

void AddressDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace trel::desktop::place
