#pragma once

#include "MultiComboBox.h"
#include "PlanStandardItemModel.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/RecordingService.h"

#include "trelwidgets/ComboBox.h"

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>

/// All that an operator, a screen reader or a later edit can find in a card, but for whether it is
/// folded: a line for each thing.
class CardDescription
{
public:
    explicit CardDescription(trel::mediadispatch::PlanTaskWidget& card)
        : m_card(card)
        , m_rows(card)
    {}

    QStringList lines() const
    {
        QStringList lines{line(m_rows.task()), m_rows.disagreement()};
        for (const char* name : {"title", "pbtCreatCopy", "pushButtonDelete"}) {
            lines.append(spoken(*m_card.findChild<QPushButton*>(QLatin1String(name))));
        }
        for (const char* name : {"dateEditVaildStartTime", "dateEditVaildEndTime"}) {
            lines.append(m_card.findChild<QDateEdit*>(QLatin1String(name))->text());
        }
        for (int row = 0; row < m_rows.rowCount(); ++row) {
            lines.append(m_rows.line(row));
            lines.append(cells(row));
            lines.append(boxes(row));
            lines.append(details(row));
        }
        return lines;
    }

private:
    static QString spoken(const QAbstractButton& button)
    {
        return button.text() + QLatin1Char('|') + button.toolTip() + QLatin1Char('|') +
               button.accessibleName();
    }

    QString cells(int row) const
    {
        using namespace trel::mediadispatch;
        QStringList texts;
        for (int column = 0; column < PlanColumnCount; ++column) {
            texts.append(m_rows.text(row, static_cast<PlanColumn>(column)));
        }
        return texts.join(QLatin1Char('|'));
    }

    static QString entries(const QComboBox& box)
    {
        QStringList texts{box.accessibleName()};
        for (int i = 0; i < box.count(); ++i) {
            texts.append(box.itemText(i) + QLatin1Char('=') + box.itemData(i).toString() +
                         QLatin1String(box.itemData(i, Qt::CheckStateRole).toBool() ? "*" : ""));
        }
        return texts.join(QLatin1Char(','));
    }

    QString boxes(int row) const
    {
        const auto& weeks = m_rows.weeks(row);
        return QStringList{entries(m_rows.mode(row)), entries(weeks),
                           entries(m_rows.endAction(row)), weeks.lineEdit()->text(),
                           weeks.everyDayText()}
            .join(QLatin1Char('|'));
    }

    QString details(int row) const
    {
        using namespace trel::mediadispatch;
        const QSpinBox& times = m_rows.times(row);
        return QStringList{QString::number(times.minimum()),
                           QString::number(times.maximum()),
                           m_rows.state(row).text(),
                           m_rows.state(row).styleSheet(),
                           m_rows.cell(row, CopyColumn)->toolTip(),
                           m_rows.cell(row, DeleteColumn)->toolTip(),
                           m_rows.startTime(row).accessibleName(),
                           m_rows.endTime(row).accessibleName(),
                           times.accessibleName(),
                           m_rows.mode(row).property("row").toString(),
                           m_rows.copyButton(row).property("id").toString(),
                           spoken(m_rows.copyButton(row)),
                           spoken(m_rows.deleteButton(row))}
            .join(QLatin1Char('|'));
    }

    trel::mediadispatch::PlanTaskWidget& m_card;
    trel::mediadispatch::PlanTaskWidgetInspector m_rows;
};
