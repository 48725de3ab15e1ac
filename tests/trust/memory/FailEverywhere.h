#pragma once

#include "FailingMemory.h"

#include <QtTest>

/// Does something with the n-th allocation failing, for every n. The check is told whether one has
/// failed; the last time none has.
template <typename Action, typename Check>
void failEverywhere(FailingMemory::Lasting lasting, const Action& action, const Check& check,
                    FailingMemory::Kind kind = FailingMemory::Kind::All)
{
    bool hasFailed = true;
    for (long nth = 1; hasFailed; ++nth) {
        FailingMemory::failAt(nth, lasting, kind);
        action();
        FailingMemory::heal();
        hasFailed = FailingMemory::hasFailed();
        check(hasFailed);
        if (QTest::currentTestFailed()) {
            qWarning("at allocation %ld", nth);
            return;
        }
    }
}

/// The rows of a test that is run with either.
inline void addLastings()
{
    QTest::addColumn<FailingMemory::Lasting>("lasting");
    QTest::newRow("once") << FailingMemory::Lasting::Once;
    QTest::newRow("for good") << FailingMemory::Lasting::ForGood;
}

Q_DECLARE_METATYPE(FailingMemory::Lasting)
