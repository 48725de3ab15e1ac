#include "versions/VersionNameDialog.h"

#include "ProblemWords.h"
#include "trelprogramschedule/history/ScheduleVersion.h"
#include "versions/VersionWords.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

VersionNameDialog::VersionNameDialog(const ScheduleVersion& version, QWidget* parent)
    : QDialog(parent)
    , m_number(version.number)
    , m_nameLabel(new QLabel(this))
    , m_name(new QLineEdit(version.name, this))
    , m_noteLabel(new QLabel(this))
    , m_note(new QLineEdit(version.note, this))
    , m_fault(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("versionNameDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_name->setObjectName(QStringLiteral("versionName"));
    m_name->setMaxLength(kLongestVersionName);
    m_note->setObjectName(QStringLiteral("versionNote"));
    m_note->setMaxLength(kLongestVersionNote);
    m_fault->setObjectName(QStringLiteral("versionNameFault"));
    m_fault->setWordWrap(true);
    for (QLabel* label : {m_nameLabel, m_noteLabel, m_fault}) {
        label->setTextFormat(Qt::PlainText);
    }
    m_buttons->button(QDialogButtonBox::Ok)->setProperty("style", QStringLiteral("general"));
    m_nameLabel->setBuddy(m_name);
    m_noteLabel->setBuddy(m_note);

    auto* fields = new QFormLayout;
    fields->addRow(m_nameLabel, m_name);
    fields->addRow(m_noteLabel, m_note);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(m_fault);
    layout->addWidget(m_buttons);
    // Both are put in their places: where one alone is, the toolkit leaves out its neighbor.
    setTabOrder(m_note, m_buttons->button(QDialogButtonBox::Cancel));
    setTabOrder(m_buttons->button(QDialogButtonBox::Cancel),
                m_buttons->button(QDialogButtonBox::Ok));

    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &VersionNameDialog::check);
    connect(m_note, &QLineEdit::textChanged, this, &VersionNameDialog::check);
    retranslate();
    resize(460, sizeHint().height());
}

QString VersionNameDialog::name() const
{
    return m_name->text();
}

QString VersionNameDialog::note() const
{
    return m_note->text();
}

void VersionNameDialog::check()
{
    const QString fault = problems::sentence(faultOfVersionTexts(name(), note()));
    m_fault->setText(fault);
    m_fault->setVisible(!fault.isEmpty());
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(fault.isEmpty());
}

void VersionNameDialog::retranslate()
{
    setWindowTitle(VersionWords::version(m_number));
    m_nameLabel->setText(tr("Name"));
    m_noteLabel->setText(tr("Note"));
    check();
}

void VersionNameDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace trel::desktop::versions
