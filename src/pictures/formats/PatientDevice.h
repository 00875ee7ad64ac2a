// A picture to paint on whose patience ends: a drawing that would keep us busy for minutes is left
// unfinished. Used where drawings of unknown origin are painted by a library.
#pragma once

#include <QImage>
#include <QPaintDevice>
#include <QPainter>
#include <memory>

namespace neb {

class PatientDevice : public QPaintDevice {
  public:
    // Picture outlives this; all that is painted goes on to it until the time is up.
    PatientDevice(QImage& Picture, int Milliseconds);
    ~PatientDevice() override;

    bool GaveUp() const;
    QPaintEngine* paintEngine() const override;

  protected:
    int metric(PaintDeviceMetric Metric) const override;

  private:
    class Engine;
    QImage& mPicture;
    std::unique_ptr<Engine> mEngine;
};

}  // namespace neb
