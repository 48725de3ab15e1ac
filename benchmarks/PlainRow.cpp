#include "PlainRow.h"

#include "card/PlanColumns.h"
#include "ui_kCustomLineEdit.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItem>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <array>

using namespace trel::mediadispatch;

namespace bench {

namespace {

const std::array<QString, WeekDayCount> kDays = {
    QStringLiteral("Every day"), QStringLiteral("Mon"), QStringLiteral("Tue"),
    QStringLiteral("Wed"),       QStringLiteral("Thu"), QStringLiteral("Fri"),
    QStringLiteral("Sat"),       QStringLiteral("Sun")};

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

QString programsOf(const PlayPlan& plan)
{
    QString names;
    for (const struProgInfo& entry : plan.programs) {
        names += (names.isEmpty() ? QString() : QStringLiteral(",")) + text(entry.progName);
    }
    return names;
}

/// Makes the widgets of one row.
class RowMaker
{
public:
    RowMaker(QTableView& table, int row, QWidget* owner)
        : m_table(table)
        , m_row(row)
        , m_owner(owner)
    {}

    void addBox(PlanColumn column, const QStringList& labels, int current, int margin) const
    {
        QWidget* holder = makeHolder(margin);
        auto* box = make<QComboBox>(holder);
        box->setFixedHeight(24);
        for (int i = 0; i < labels.size(); ++i) {
            box->addItem(labels.at(i), i);
        }
        box->setCurrentIndex(current);
        box->setProperty("row", m_row);
        place(column, holder);
    }

    void addTime(PlanColumn column, const std::string& time, bool isEnabled) const
    {
        QWidget* holder = makeHolder(0);
        auto* edit = make<QTimeEdit>(holder);
        edit->setFixedHeight(24);
        edit->setContextMenuPolicy(Qt::NoContextMenu);
        edit->setDisplayFormat(kTimeFormat);
        edit->setTime(QTime::fromString(text(time), kTimeFormat));
        edit->setEnabled(isEnabled);
        edit->setProperty("row", m_row);
        place(column, holder);
    }

    void addTimes(int times, bool isEnabled) const
    {
        QWidget* holder = makeHolder(0);
        auto* box = make<QSpinBox>(holder);
        box->setFixedHeight(24);
        box->setContextMenuPolicy(Qt::NoContextMenu);
        box->setRange(1, 999);
        box->setValue(times);
        box->setEnabled(isEnabled);
        box->setProperty("row", m_row);
        place(TimesColumn, holder);
    }

    QLabel* addLabel() const
    {
        auto* label = new QLabel(m_owner);
        label->setStyleSheet(QStringLiteral("color:green; padding-left: 1px;"));
        label->setText(QStringLiteral("Normal"));
        label->setProperty("row", m_row);
        m_table.setIndexWidget(m_table.model()->index(m_row, StateColumn), label);
        return label;
    }

    void addDays(const std::string& weeks, DayLists lists) const
    {
        QWidget* holder = makeHolder(0);
        auto* box = make<QComboBox>(holder);
        box->setFixedHeight(24);
        if (lists == DayLists::Made) {
            box->setItemDelegate(new QStyledItemDelegate(box));
            box->setEditable(true);
        } else {
            box->setLineEdit(new QLineEdit(box));
        }
        box->setInsertPolicy(QComboBox::NoInsert);
        box->lineEdit()->setAttribute(Qt::WA_TransparentForMouseEvents);
        box->lineEdit()->setReadOnly(true);
        QStringList shown;
        for (int day = EveryDay; day < WeekDayCount; ++day) {
            const QString& label = kDays.at(static_cast<std::size_t>(day));
            const bool isChosen = weeks.find(std::to_string(day)) != std::string::npos;
            box->addItem(label, day);
            box->setItemData(day, isChosen, Qt::CheckStateRole);
            if (isChosen) {
                shown.append(label);
            }
        }
        const QString joined = shown.join(QLatin1Char(','));
        box->setCurrentText(joined);
        box->setToolTip(joined);
        place(WeeksColumn, holder);
    }

    void addButton(PlanColumn column, const QString& image, const QString& toolTip, int id) const
    {
        QWidget* holder = makeHolder(0);
        auto* button = make<QPushButton>(holder);
        button->setFixedSize(24, 24);
        button->setFocusPolicy(Qt::NoFocus);
        button->setProperty("imageBtn", image);
        button->setProperty("id", id);
        holder->setToolTip(toolTip);
        place(column, holder);
    }

    void place(PlanColumn column, QWidget* widget) const
    {
        m_table.setIndexWidget(m_table.model()->index(m_row, column), widget);
    }

private:
    QWidget* makeHolder(int margin) const
    {
        auto* holder = new QWidget(m_owner);
        auto* layout = new QVBoxLayout(holder);
        layout->setContentsMargins(0, margin, 0, margin);
        return holder;
    }

    /// Owned by somebody else at first, an editor moves into its holder with the layout.
    template <typename Editor>
    Editor* make(QWidget* holder) const
    {
        const bool isFinal = m_owner == m_table.viewport();
        auto* editor = new Editor(isFinal ? holder : m_owner);
        holder->layout()->addWidget(editor);
        return editor;
    }

    QTableView& m_table;
    int m_row;
    QWidget* m_owner;
};

} // namespace

QList<QStandardItem*> makePlainCells(const PlayPlan& plan)
{
    QList<QStandardItem*> cells;
    cells.reserve(PlanColumnCount);
    for (int column = 0; column < PlanColumnCount; ++column) {
        cells.append(new QStandardItem);
    }
    cells[TitleColumn]->setText(QStringLiteral("  Plan %1:").arg(plan.id));
    cells[TitleColumn]->setData(plan.id, PlanIdRole);
    cells[ProgramsColumn]->setData(programsOf(plan), ProgramTextRole);
    cells[ModeCaptionColumn]->setText(QStringLiteral("Mode"));
    cells[StartTimeCaptionColumn]->setText(QStringLiteral("From"));
    cells[EndTimeCaptionColumn]->setText(QStringLiteral("To"));
    cells[TimesCaptionColumn]->setText(QStringLiteral("Frequency"));
    cells[WeeksCaptionColumn]->setText(QStringLiteral("Days"));
    cells[EndActionCaptionColumn]->setText(QStringLiteral("At the end"));
    return cells;
}

QWidget* makePlainField(const PlayPlan& plan, QWidget* parent)
{
    auto* field = new QFrame(parent);
    Ui::kCustomLineEdit form;
    form.setupUi(field);
    field->setAttribute(Qt::WA_StyledBackground);
    field->setProperty("style", QStringLiteral("BG3"));
    form.pushButton->setProperty("imageBtn", QStringLiteral("add"));
    form.pushButton->setFocusPolicy(Qt::NoFocus);
    form.lineEdit->setFocusPolicy(Qt::NoFocus);
    form.lineEdit->setText(programsOf(plan));
    return field;
}

QLabel* addPlainEditors(QTableView& table, int row, const PlayPlan& plan, QWidget* owner,
                        DayLists dayLists)
{
    const RowMaker maker(table, row, owner);
    const bool hasEnd = plan.mode == TimeMode;
    maker.addBox(ModeColumn, {QStringLiteral("Time"), QStringLiteral("Frequency")}, plan.mode, 9);
    maker.addTime(StartTimeColumn, plan.startTime, true);
    maker.addTime(EndTimeColumn, plan.endTime, hasEnd);
    maker.addTimes(plan.times, !hasEnd);
    QLabel* const label = maker.addLabel();
    maker.addDays(plan.weeks, dayLists);
    maker.addBox(EndActionColumn, {QStringLiteral("Black screen"), QStringLiteral("Freeze")},
                 plan.endAction, 0);
    maker.addButton(CopyColumn, QStringLiteral("projectSaveAs"), QStringLiteral("Copy"), plan.id);
    maker.addButton(DeleteColumn, QStringLiteral("delete"), QStringLiteral("Delete"), plan.id);
    return label;
}

} // namespace bench
