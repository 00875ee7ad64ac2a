#include "pictures/metafiles/DrawnExtent.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

namespace neb {
namespace {

constexpr int Side = 4096, Dots = 96, Millimetres = 1084, Depth = 32;

bool IsSeen(const QBrush& Brush) {
    return Brush.style() != Qt::NoBrush &&
           (Brush.style() != Qt::SolidPattern || Brush.color() != Qt::white);
}

}  // namespace

// Lines, rectangles and ellipses arrive as polygons and paths.
class DrawnExtent::Engine : public QPaintEngine {
  public:
    Engine() : QPaintEngine(AllFeatures) {}

    QRectF Extent() const { return mExtent; }
    Type type() const override { return User; }
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}

    void drawPath(const QPainterPath& Path) override {
        AddShape(Path.boundingRect(), IsSeen(painter()->brush()));
    }
    void drawPolygon(const QPointF* Points, int Count, PolygonDrawMode Mode) override {
        AddShape(QPolygonF(QList<QPointF>(Points, Points + Count)).boundingRect(),
                 Mode != PolylineMode && IsSeen(painter()->brush()));
    }
    void drawPixmap(const QRectF& To, const QPixmap&, const QRectF&) override { Add(To); }
    void drawImage(const QRectF& To, const QImage&, const QRectF&,
                   Qt::ImageConversionFlags) override {
        Add(To);
    }
    void drawTextItem(const QPointF&, const QTextItem&) override {}

  private:
    void AddShape(const QRectF& Bounds, bool Filled) {
        const QPen Pen = painter()->pen();
        const double Half = Pen.style() == Qt::NoPen ? 0 : Pen.widthF() / 2;
        if (Half > 0 || Filled) Add(Bounds.adjusted(-Half, -Half, Half, Half));
    }
    void Add(const QRectF& Bounds) {
        if (painter()->compositionMode() == QPainter::CompositionMode_Destination) return;
        QRectF Seen = painter()->transform().mapRect(Bounds.normalized());
        if (painter()->hasClipping())
            Seen &= painter()->transform().mapRect(painter()->clipBoundingRect());
        mExtent |= Seen;
    }

    QRectF mExtent;
};

DrawnExtent::DrawnExtent() : mEngine(std::make_unique<Engine>()) {}

DrawnExtent::~DrawnExtent() = default;

QRectF DrawnExtent::Extent() const {
    return mEngine->Extent();
}

QPaintEngine* DrawnExtent::paintEngine() const {
    return mEngine.get();
}

int DrawnExtent::metric(PaintDeviceMetric Metric) const {
    switch (Metric) {
        case PdmWidth:
        case PdmHeight:
            return Side;
        case PdmWidthMM:
        case PdmHeightMM:
            return Millimetres;
        case PdmDepth:
            return Depth;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return Dots;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 1;
    }
}

}  // namespace neb
