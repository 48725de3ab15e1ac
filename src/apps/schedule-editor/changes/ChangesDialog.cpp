#include "changes/ChangesDialog.h"

#include "HostPrompts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <vector>

namespace trel::desktop::changes {

namespace {

QLabel* addText(QVBoxLayout& layout, const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout.addWidget(label);
    return label;
}

} // namespace

ChangesDialog::ChangesDialog(const ChangesQuestion& question, const look::ThemeColours& colours,
                             QWidget* window)
    : QDialog(window)
    , m_question(question)
    , m_colours(colours)
    , m_layout(new QVBoxLayout(this))
    , m_look(new QPushButton(this))
{
    setObjectName(QStringLiteral("changesDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowModality(Qt::ApplicationModal);
    setLocale(window->locale());
    setWindowTitle(prompts::questionTitle());
    build();
    addAnswers();
    resize(720, 420);
}

ChangesDialog::~ChangesDialog() = default;

void ChangesDialog::build()
{
    addText(*m_layout, m_question.text)->setObjectName(QStringLiteral("changesText"));
    QLabel* title = addText(*m_layout, m_question.listTitle);
    auto* lines = new QPlainTextEdit(m_question.lines.join(QLatin1Char('\n')), this);
    lines->setObjectName(QStringLiteral("changesList"));
    lines->setAccessibleName(m_question.listTitle);
    lines->setReadOnly(true);
    lines->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lines->setTabChangesFocus(true);
    title->setBuddy(lines);
    m_layout->addWidget(lines, 1);
    m_look->setObjectName(QStringLiteral("changesLook"));
    m_look->setText(tr("Look at it in the week"));
    m_look->setCheckable(true);
    m_look->setAutoDefault(false);
    // It stands below the list.
    setTabOrder(lines, m_look);
    connect(m_look, &QPushButton::toggled, this, &ChangesDialog::showWeeks);
}

void ChangesDialog::addAnswers()
{
    auto* row = new QHBoxLayout;
    row->addWidget(m_look);
    row->addStretch();
    // As in the prompts: the first one ends the row, and Tab goes along it.
    const int first = row->count();
    std::vector<QPushButton*> buttons;
    for (int i = 0; i < m_question.answers.size(); ++i) {
        auto* button = new QPushButton(m_question.answers.at(i), this);
        button->setObjectName(QStringLiteral("answer%1").arg(i + 1));
        connect(button, &QPushButton::clicked, this, [this, i] { done(i + 1); });
        row->insertWidget(first, button);
        buttons.push_back(button);
    }
    m_layout->addLayout(row);
    QWidget* former = m_look;
    for (auto button = buttons.rbegin(); button != buttons.rend(); ++button) {
        setTabOrder(former, *button);
        former = *button;
    }
    if (!buttons.empty()) {
        buttons.front()->setProperty("style", QStringLiteral("general"));
        buttons.front()->setDefault(true);
        buttons.front()->setFocus();
    }
}

void ChangesDialog::showWeeks(bool areShown)
{
    if (m_weeks == nullptr && areShown) {
        m_weeks = new ChangedWeeks(m_question.former, m_question.later, m_colours, locale(), this);
        m_layout->insertWidget(m_layout->count() - 1, m_weeks, 3);
        const QSize room = screen()->availableGeometry().size();
        resize(size().expandedTo({1000, 640}).boundedTo(room));
    }
    if (m_weeks != nullptr) {
        m_weeks->setVisible(areShown);
    }
}

int ChangesDialog::ask()
{
    return exec();
}

} // namespace trel::desktop::changes
