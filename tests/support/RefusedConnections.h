#pragma once

#include <QtTest>

/// Expects the two lines with which the toolkit refuses the idle connections of a scheduleControlUI
/// that is built next; a line that stays away fails the test.
struct RefusedConnections
{
    RefusedConnections()
    {
        QTest::ignoreMessage(QtWarningMsg,
                             "QObject::connect(trel::mediadispatch::TitleBar, "
                             "trel::mediadispatch::scheduleControlUI): invalid nullptr parameter");
        QTest::ignoreMessage(QtWarningMsg,
                             "QObject::connect(trel::mediadispatch::scheduleControlUI, Unknown): "
                             "invalid nullptr parameter");
    }
};
