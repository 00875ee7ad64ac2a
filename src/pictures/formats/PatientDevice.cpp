#include "pictures/formats/PatientDevice.h"

#include <QPaintEngine>
#include <QPainterPath>

#include "support/work/WorkTimer.h"

namespace neb {
namespace {

// Dashes along a line that leaves the picture by miles are as many as nobody can wait for.
constexpr double LongestDashed = 50000;

bool IsTooLongToDash(const QRectF& Bounds, const QTransform& Transform) {
    const QRectF Seen = Transform.mapRect(Bounds);
    return Seen.width() > LongestDashed || Seen.height() > LongestDashed;
}

}  // namespace

// Hands everything on to a painter on the picture. Lines, rectangles and ellipses arrive as
// polygons and paths.
class PatientDevice::Engine : public QPaintEngine {
  public:
    Engine(QImage& OnPicture, int Milliseconds)
        : QPaintEngine(AllFeatures), mPicture(OnPicture), mMost(Milliseconds) {}

    bool GaveUp() const { return mGaveUp; }
    Type type() const override { return User; }
    bool begin(QPaintDevice*) override { return mTarget.begin(&mPicture); }
    bool end() override { return mTarget.end(); }

    void updateState(const QPaintEngineState& State) override {
        const DirtyFlags Changed = State.state();
        if (Changed & DirtyTransform) mTarget.setTransform(State.transform());
        if (Changed & DirtyPen) mTarget.setPen(State.pen());
        if (Changed & DirtyBrush) mTarget.setBrush(State.brush());
        if (Changed & DirtyBrushOrigin) mTarget.setBrushOrigin(State.brushOrigin());
        if (Changed & DirtyFont) mTarget.setFont(State.font());
        if (Changed & DirtyOpacity) mTarget.setOpacity(State.opacity());
        if (Changed & DirtyCompositionMode) mTarget.setCompositionMode(State.compositionMode());
        if (Changed & DirtyHints) {
            mTarget.setRenderHints(~State.renderHints(), false);
            mTarget.setRenderHints(State.renderHints());
        }
        UpdateClip(State, Changed);
    }
    void drawPath(const QPainterPath& Path) override {
        if (!IsPatient()) return;
        UndashIfLong(Path.controlPointRect());
        mTarget.drawPath(Path);
    }
    void drawPolygon(const QPointF* Points, int Count, PolygonDrawMode Mode) override {
        if (!IsPatient()) return;
        if (Mode == PolylineMode) {
            UndashIfLong(QPolygonF(QList<QPointF>(Points, Points + Count)).boundingRect());
            mTarget.drawPolyline(Points, Count);
        } else {
            mTarget.drawPolygon(Points, Count,
                                Mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
        }
    }
    void drawPixmap(const QRectF& To, const QPixmap& Pixmap, const QRectF& From) override {
        if (IsPatient()) mTarget.drawPixmap(To, Pixmap, From);
    }
    void drawImage(const QRectF& To, const QImage& Image, const QRectF& From,
                   Qt::ImageConversionFlags Flags) override {
        if (IsPatient()) mTarget.drawImage(To, Image, From, Flags);
    }
    void drawTextItem(const QPointF& At, const QTextItem& Text) override {
        if (IsPatient()) mTarget.drawTextItem(At, Text);
    }

  private:
    bool IsPatient() {
        mGaveUp = mGaveUp || mTime.Milliseconds() > mMost;
        return !mGaveUp;
    }
    void UndashIfLong(const QRectF& Bounds) {
        if (mTarget.pen().style() <= Qt::SolidLine || !IsTooLongToDash(Bounds, mTarget.transform()))
            return;
        QPen Pen = mTarget.pen();
        Pen.setStyle(Qt::SolidLine);
        mTarget.setPen(Pen);
    }
    void UpdateClip(const QPaintEngineState& State, DirtyFlags Changed) {
        if (Changed & DirtyClipPath) mTarget.setClipPath(State.clipPath(), State.clipOperation());
        if (Changed & DirtyClipRegion)
            mTarget.setClipRegion(State.clipRegion(), State.clipOperation());
        if (Changed & DirtyClipEnabled) mTarget.setClipping(State.isClipEnabled());
    }

    QImage& mPicture;
    QPainter mTarget;
    WorkTimer mTime;
    int mMost;
    bool mGaveUp = false;
};

PatientDevice::PatientDevice(QImage& Picture, int Milliseconds)
    : mPicture(Picture), mEngine(std::make_unique<Engine>(Picture, Milliseconds)) {}

PatientDevice::~PatientDevice() = default;

bool PatientDevice::GaveUp() const {
    return mEngine->GaveUp();
}

QPaintEngine* PatientDevice::paintEngine() const {
    return mEngine.get();
}

int PatientDevice::metric(PaintDeviceMetric Metric) const {
    struct Row {
        PaintDeviceMetric Metric;
        int (QPaintDevice::*Ask)() const;
    };
    static constexpr Row Rows[] = {{PdmWidth, &QPaintDevice::width},
                                   {PdmHeight, &QPaintDevice::height},
                                   {PdmWidthMM, &QPaintDevice::widthMM},
                                   {PdmHeightMM, &QPaintDevice::heightMM},
                                   {PdmDepth, &QPaintDevice::depth},
                                   {PdmNumColors, &QPaintDevice::colorCount},
                                   {PdmDpiX, &QPaintDevice::logicalDpiX},
                                   {PdmDpiY, &QPaintDevice::logicalDpiY},
                                   {PdmPhysicalDpiX, &QPaintDevice::physicalDpiX},
                                   {PdmPhysicalDpiY, &QPaintDevice::physicalDpiY}};
    for (const Row& Each : Rows)
        if (Each.Metric == Metric) return (mPicture.*Each.Ask)();
    // One pixel is one pixel, in either way of asking.
    return Metric == PdmDevicePixelRatioScaled ? static_cast<int>(devicePixelRatioFScale()) : 1;
}

}  // namespace neb
