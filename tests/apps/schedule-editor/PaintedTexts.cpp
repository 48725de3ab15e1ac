#include "PaintedTexts.h"

#include <QGuiApplication>
#include <QScreen>

class PaintedTexts::Engine : public QPaintEngine
{
public:
    Engine()
        : QPaintEngine(AllFeatures)
    {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/,
                    const QRectF& /*from*/) override
    {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    /// A text comes in parts, one for each direction of writing and each font, side by side.
    void drawTextItem(const QPointF& place, const QTextItem& item) override
    {
        constexpr double nearby = 2.0;
        const bool isNext = !texts.isEmpty() && qAbs(place.y() - m_end.y()) < nearby &&
                            qAbs(place.x() - m_end.x()) < nearby;
        if (isNext) {
            texts.last() += item.text();
        } else {
            texts.append(item.text());
            families.append(item.font().families().join(QLatin1Char(',')));
        }
        m_end = place + QPointF(item.width(), 0.0);
    }
    Type type() const override { return User; }

    QStringList texts;
    QStringList families;

private:
    QPointF m_end; ///< Of the last part.
};

PaintedTexts::PaintedTexts(const QSize& size)
    : m_size(size)
    , m_engine(std::make_unique<Engine>())
{}

PaintedTexts::~PaintedTexts() = default;

QStringList PaintedTexts::texts() const
{
    return m_engine->texts;
}

QStringList PaintedTexts::families() const
{
    return m_engine->families;
}

QPaintEngine* PaintedTexts::paintEngine() const
{
    return m_engine.get();
}

int PaintedTexts::metric(PaintDeviceMetric metric) const
{
    const QScreen& screen = *QGuiApplication::primaryScreen();
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmWidthMM:
    case PdmHeightMM:
        return 1;
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return qRound(devicePixelRatioFScale());
    case PdmDpiX:
    case PdmPhysicalDpiX:
        return qRound(screen.logicalDotsPerInchX());
    case PdmDpiY:
    case PdmPhysicalDpiY:
        return qRound(screen.logicalDotsPerInchY());
    default:
        return QPaintDevice::metric(metric);
    }
}
