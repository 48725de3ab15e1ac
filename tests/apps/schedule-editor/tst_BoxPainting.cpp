#include "look/BoxPainting.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QtTest>

using namespace trel::desktop;

/// What boxes without round corners are painted of. They may be as large as a window's table.
class tst_BoxPainting : public QObject
{
    Q_OBJECT

private slots:
    void aGroundThatDoesNotShowIsNotPainted();
    void aGroundIsFilledAndNoShape();
    void theDotsAreThoseOfAShape_data();
    void theDotsAreThoseOfAShape();
};

namespace {

/// Notes the rectangles that reach it, each as what it is painted with.
class RectangleLog : public QPaintEngine
{
public:
    QStringList lines;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}

    void updateState(const QPaintEngineState& changed) override
    {
        if (changed.state() & DirtyPen) {
            m_hasPen = changed.pen().style() != Qt::NoPen;
        }
        if (changed.state() & DirtyBrush) {
            m_hasBrush = changed.brush().style() != Qt::NoBrush;
        }
    }

    void drawRects(const QRectF*, int count) override
    {
        const QString line = QStringLiteral("%1%2").arg(QLatin1String(m_hasPen ? "line" : ""),
                                                        QLatin1String(m_hasBrush ? "fill" : ""));
        for (int i = 0; i < count; ++i) {
            lines.append(line);
        }
    }

private:
    bool m_hasPen = true;
    bool m_hasBrush = false;
};

class LoggedDevice : public QPaintDevice
{
public:
    mutable RectangleLog log;

    QPaintEngine* paintEngine() const override { return &log; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        return metric == PdmDevicePixelRatio || metric == PdmDevicePixelRatioScaled ? 1 : 500;
    }
};

const QRect kBox(3, 5, 400, 300);

QStringList paintedOf(const QColor& ground, const QColor& line)
{
    LoggedDevice device;
    QPainter painter(&device);
    look::paintBox(painter, kBox, ground, line, 0);
    painter.end();
    return device.log.lines;
}

} // namespace

void tst_BoxPainting::aGroundThatDoesNotShowIsNotPainted()
{
    QCOMPARE(paintedOf(Qt::transparent, Qt::red), QStringList{QStringLiteral("line")});
}

void tst_BoxPainting::aGroundIsFilledAndNoShape()
{
    QCOMPARE(paintedOf(Qt::blue, Qt::red),
             (QStringList{QStringLiteral("fill"), QStringLiteral("line")}));
}

void tst_BoxPainting::theDotsAreThoseOfAShape_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QColor>("ground");

    for (const qreal ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const QByteArray name = QByteArray::number(ratio);
        QTest::addRow("%s, shows", name.constData()) << ratio << QColor(Qt::blue);
        QTest::addRow("%s, does not show", name.constData()) << ratio << QColor(Qt::transparent);
    }
}

void tst_BoxPainting::theDotsAreThoseOfAShape()
{
    QFETCH(qreal, ratio);
    QFETCH(QColor, ground);
    QImage box(QSize(410, 310) * ratio, QImage::Format_ARGB32_Premultiplied);
    box.setDevicePixelRatio(ratio);
    box.fill(Qt::white);
    QImage shape(box);

    QPainter boxPainter(&box);
    look::paintBox(boxPainter, kBox, ground, Qt::red, 0);
    boxPainter.end();
    QPainter shapePainter(&shape);
    shapePainter.setPen(QPen(Qt::red, 1.0));
    shapePainter.setBrush(ground);
    shapePainter.drawRect(QRectF(kBox).adjusted(0.5, 0.5, -0.5, -0.5));
    shapePainter.end();

    QCOMPARE(box, shape);
}

TREL_TEST(tst_BoxPainting, QApplication)
#include "tst_BoxPainting.moc"
