// Pages as pictures, painted beside the window: what is looked at comes first, and what is likely
// to be looked at next is read ahead. They are kept as long as there is room. Used by PrintView.
#pragma once

#include <QImage>
#include <QObject>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "support/work/Job.h"

namespace neb {

class PrintDocument;

// A page at a size.
struct PageRequest {
    int Page = 0;     // from 1
    QSize Pixels;     // of the whole sheet
    double Dots = 0;  // pixels to the inch of paper
    qint64 Bytes() const { return qint64(4) * Pixels.width() * Pixels.height(); }
};

struct PageImage {
    QImage Pixels;  // null where the page cannot be painted
    QString Fault;  // why
};

class PageImages : public QObject {
    Q_OBJECT

  public:
    // Called on threads of their own, several at a time, and perhaps still busy when whoever looks
    // has gone: it owns what it uses. Throws Fault.
    using PaintFunction = std::function<QImage(const PageRequest& Wanted)>;
    static constexpr qint64 UsualBudget = qint64(192) << 20;

    // Budget: bytes of the pages that are kept and in work. What is looked at may go beyond it.
    explicit PageImages(PaintFunction Paint, qint64 Budget = UsualBudget);
    static PaintFunction PainterOf(std::shared_ptr<const PrintDocument> Document);

    // What is looked at, and what may be next, each with the most urgent first. What was wanted
    // before and is not begun is not wanted any more.
    void Want(std::vector<PageRequest> InSight, std::vector<PageRequest> Ahead);
    const PageImage* Find(const PageRequest& Wanted) const;  // null: not yet painted
    // The page at another size, for as long as it is not yet painted; may be null.
    QImage StandIn(int Page) const;
    qint64 Bytes() const { return mBytes; }  // of what is kept

  Q_SIGNALS:
    void Painted();

  private:
    struct Key {
        int Page = 0, Width = 0, Height = 0;
        auto operator<=>(const Key&) const = default;
    };
    struct Kept {
        PageImage Image;
        qint64 Used = 0;  // when it was wanted last
    };
    struct Running {
        PageRequest What;
        std::unique_ptr<Job<PageImage>> Work;
    };
    static Key KeyOf(const PageRequest& Of);
    void Touch(const std::vector<PageRequest>& All);
    qint64 UseOf(const PageRequest& Of) const;
    bool IsMissing(const PageRequest& Wanted) const;
    void BeginNext();
    void Begin(const PageRequest& Next);
    void MakeRoom(qint64 Bytes);
    bool DropOldest();
    void Collect();
    void Keep(const PageRequest& What, PageImage Image);

    PaintFunction mPaint;
    qint64 mBudget;
    std::vector<PageRequest> mInSight, mAhead;
    std::map<Key, Kept> mKept;
    qint64 mBytes = 0;
    qint64 mNow = 0;
    std::vector<Running> mRunning;
    QTimer mLook;
};

}  // namespace neb
