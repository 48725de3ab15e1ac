#include "HostFixture.h"
#include "PlainDialog.h"
#include "PlainWindow.h"

#include <QMap>

#include <algorithm>
#include <iterator>

using namespace trel::mediadispatch;

/// The floor of the start has to be the windows of the editor: no widget more, and none less.
class tst_StartFloor : public QObject
{
    Q_OBJECT

private slots:
    void itsWidgetsAreThoseOfTheEditor();

private:
    static QString kindOf(const QWidget& widget);
    /// How many there are of each kind, on show and hidden.
    static QStringList widgets();
};

QString tst_StartFloor::kindOf(const QWidget& widget)
{
    const auto isOfToolkit = [](const QMetaObject* type) {
        const QLatin1String name(type->className());
        return name.size() > 1 && name.at(0) == QLatin1Char('Q') && QChar(name.at(1)).isUpper();
    };
    const QMetaObject* type = widget.metaObject();
    while (!isOfToolkit(type)) {
        type = type->superClass();
    }
    return QString::fromLatin1(type->className());
}

QStringList tst_StartFloor::widgets()
{
    QMap<QString, int> counts;
    const QWidgetList all = QApplication::allWidgets();
    for (const QWidget* widget : all) {
        const QLatin1String state(widget->isVisible() ? "on show" : "hidden");
        ++counts[QStringLiteral("%1 %2").arg(kindOf(*widget), state)];
    }
    QStringList lines;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        lines.append(QStringLiteral("%1: %2").arg(count.key()).arg(count.value()));
    }
    return lines;
}

void tst_StartFloor::itsWidgetsAreThoseOfTheEditor()
{
    int programs = 0;
    QStringList ofEditor;
    {
        HostFixture fixture;
        QCOMPARE(fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION)),
                 QString());
        fixture.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.window));
        programs = static_cast<int>(fixture.manager.getPrograms().size());
        ofEditor = widgets();
    }
    QCOMPARE(programs, 8);
    QCOMPARE(widgets(), QStringList());

    bench::PlainWindow window(programs);
    bench::PlainDialog dialog;
    dialog.build(0);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QStringList ofFloor = widgets();
    const auto missing = [](const QStringList& lines, const QStringList& others) {
        QStringList found;
        std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
                     [&others](const QString& line) { return !others.contains(line); });
        return found.join(QLatin1String(", "));
    };
    QVERIFY2(ofFloor == ofEditor,
             qPrintable(QStringLiteral("floor: %1\neditor: %2")
                            .arg(missing(ofFloor, ofEditor), missing(ofEditor, ofFloor))));
}

QTEST_MAIN(tst_StartFloor)
#include "tst_StartFloor.moc"
