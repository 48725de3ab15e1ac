#pragma once

#include "PlanList.h"
#include "PlanTaskWidget.h"

#include <QLayout>
#include <QList>
#include <QStringList>

/// The cards of a list from top to bottom.
inline QList<trel::mediadispatch::PlanTaskWidget*> cardsInOrder(const PlanList& list)
{
    using trel::mediadispatch::PlanTaskWidget;
    QList<PlanTaskWidget*> cards;
    for (int i = 0; i < list.layout()->count(); ++i) {
        if (auto* card = qobject_cast<PlanTaskWidget*>(list.layout()->itemAt(i)->widget())) {
            cards.append(card);
        }
    }
    return cards;
}

/// "folded open" and so on, in the order of the cards.
inline QString foldLine(const PlanList& list)
{
    QStringList texts;
    for (const auto* card : cardsInOrder(list)) {
        texts.append(card->isFolded() ? QStringLiteral("folded") : QStringLiteral("open"));
    }
    return texts.join(QLatin1Char(' '));
}
