// Nothing to paint on, but it notes how far what is painted reaches: some drawings go beyond the
// size that their file names. Used by the metafile player.
#pragma once

#include <QPaintDevice>
#include <QRectF>
#include <memory>

namespace neb {

class DrawnExtent : public QPaintDevice {
  public:
    DrawnExtent();
    ~DrawnExtent() override;

    // In pixels, with the widths of pens, within the clip; null when nothing was painted. What no
    // one sees on white does not count, nor do letters: other fonts have other widths.
    QRectF Extent() const;
    QPaintEngine* paintEngine() const override;

  protected:
    int metric(PaintDeviceMetric Metric) const override;

  private:
    class Engine;
    std::unique_ptr<Engine> mEngine;
};

}  // namespace neb
