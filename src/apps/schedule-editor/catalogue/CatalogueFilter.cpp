#include "catalogue/CatalogueFilter.h"

#include "catalogue/ProgramWords.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDataStream>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr int kEveryKind = -1;
constexpr ProgramKind kKinds[] = {ProgramKind::Video, ProgramKind::Audio, ProgramKind::Image,
                                  ProgramKind::Live, ProgramKind::Other};
/// Longer than any name that is worth searching for.
constexpr int kLongestSearch = 200;
constexpr quint32 kStateMagic = 0x74637431;

} // namespace

CatalogueFilter::CatalogueFilter(QWidget* parent)
    : QWidget(parent)
    , m_search(new QLineEdit(this))
    , m_kinds(new QComboBox(this))
    , m_missing(new QCheckBox(this))
    , m_unused(new QCheckBox(this))
    , m_count(new QLabel(this))
{
    setObjectName(QStringLiteral("catalogueFilter"));
    build();
    retranslate();
    connect(m_search, &QLineEdit::textChanged, this, &CatalogueFilter::changed);
    connect(m_kinds, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CatalogueFilter::changed);
    connect(m_missing, &QCheckBox::toggled, this, &CatalogueFilter::changed);
    connect(m_unused, &QCheckBox::toggled, this, &CatalogueFilter::changed);
}

void CatalogueFilter::build()
{
    m_search->setObjectName(QStringLiteral("programSearch"));
    m_search->setClearButtonEnabled(true);
    m_search->setMaxLength(kLongestSearch);
    m_search->installEventFilter(this);
    m_kinds->setObjectName(QStringLiteral("programKinds"));
    m_kinds->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_kinds->addItem(QString(), kEveryKind);
    for (const ProgramKind kind : kKinds) {
        m_kinds->addItem(QString(), static_cast<int>(kind));
    }
    m_missing->setObjectName(QStringLiteral("programMissing"));
    m_unused->setObjectName(QStringLiteral("programUnused"));
    m_count->setObjectName(QStringLiteral("programCount"));
    m_count->setTextFormat(Qt::PlainText);

    // The panel is too narrow for more in a line in most languages.
    auto* kinds = new QHBoxLayout;
    kinds->addWidget(m_kinds);
    kinds->addStretch();
    kinds->addWidget(m_count);
    auto* choices = new QHBoxLayout;
    choices->addWidget(m_missing);
    choices->addWidget(m_unused);
    choices->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_search);
    layout->addLayout(kinds);
    layout->addLayout(choices);
}

void CatalogueFilter::fill(CatalogueWish& wish) const
{
    const int kind = m_kinds->currentData().toInt();
    wish.search = m_search->text();
    wish.kind =
        kind == kEveryKind ? std::nullopt : std::make_optional(static_cast<ProgramKind>(kind));
    wish.isOnlyMissing = m_missing->isChecked();
    wish.isOnlyUnused = m_unused->isChecked();
}

bool CatalogueFilter::isFiltering() const
{
    return !m_search->text().trimmed().isEmpty() || m_kinds->currentIndex() > 0 ||
           m_missing->isChecked() || m_unused->isChecked();
}

void CatalogueFilter::showCount(std::size_t shown, std::size_t all)
{
    m_shown = shown;
    m_all = all;
    tellCount();
}

void CatalogueFilter::tellCount()
{
    m_count->setText(isFiltering() ? tr("%1 of %2", "programs found of programs")
                                         .arg(locale().toString(static_cast<qulonglong>(m_shown)),
                                              locale().toString(static_cast<qulonglong>(m_all)))
                                   : tr("%n programs", nullptr, static_cast<int>(m_all)));
}

void CatalogueFilter::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

QByteArray CatalogueFilter::saveState() const
{
    QByteArray state;
    QDataStream out(&state, QIODevice::WriteOnly);
    out << kStateMagic << static_cast<qint32>(m_kinds->currentData().toInt())
        << m_missing->isChecked() << m_unused->isChecked();
    return state;
}

bool CatalogueFilter::restoreState(const QByteArray& state)
{
    QDataStream in(state);
    quint32 magic = 0;
    qint32 kind = kEveryKind;
    bool isMissing = false;
    bool isUnused = false;
    in >> magic >> kind >> isMissing >> isUnused;
    const int place = m_kinds->findData(static_cast<int>(kind));
    if (in.status() != QDataStream::Ok || magic != kStateMagic || place < 0) {
        return false;
    }
    {
        const QSignalBlocker quiet(this);
        m_kinds->setCurrentIndex(place);
        m_missing->setChecked(isMissing);
        m_unused->setChecked(isUnused);
    }
    emit changed();
    return true;
}

bool CatalogueFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && event->type() == QEvent::ShortcutOverride) {
        // On X11 the line would take it to go to its end, as the key for that does.
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_E && key->modifiers() == Qt::ControlModifier) {
            event->ignore();
            return true;
        }
    }
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            emit done();
            return true;
        case Qt::Key_Escape:
            if (!m_search->text().isEmpty()) {
                m_search->clear();
                return true;
            }
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void CatalogueFilter::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    if (event->type() == QEvent::LocaleChange) {
        tellCount();
    }
    QWidget::changeEvent(event);
}

void CatalogueFilter::retranslate()
{
    m_search->setPlaceholderText(tr("Search name and folder"));
    m_search->setAccessibleName(tr("Search name and folder"));
    m_kinds->setAccessibleName(tr("Kind of program"));
    m_kinds->setItemText(0, tr("All kinds"));
    for (int i = 1; i < m_kinds->count(); ++i) {
        m_kinds->setItemText(
            i, programwords::kind(static_cast<ProgramKind>(m_kinds->itemData(i).toInt())));
    }
    m_missing->setText(tr("Missing"));
    m_unused->setText(tr("Unused"));
    tellCount();
}

} // namespace trel::desktop
