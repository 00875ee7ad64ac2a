#include "printing/PrintReach.h"

#include <QCoreApplication>

#include "support/Grouped.h"

namespace neb {
namespace {

// What no eye sees, and the rounding of a printer's own measures.
constexpr double Slack = 0.01;

bool IsWithin(const QRectF& Content, const QRectF& Area) {
    return Content.isEmpty() || Area.adjusted(-Slack, -Slack, Slack, Slack).contains(Content);
}

std::vector<int> PagesBeyond(const PrintDocument& Document, const std::vector<int>& Pages,
                             const QRectF& Area) {
    std::vector<int> Beyond;
    for (const int Page : Pages)
        if (!IsWithin(Document.ContentOf(Page), Area)) Beyond.push_back(Page);
    std::ranges::sort(Beyond);
    Beyond.erase(std::unique(Beyond.begin(), Beyond.end()), Beyond.end());
    return Beyond;
}

QString Named(const std::vector<int>& Pages) {
    const QString First = QString::number(Pages.front());
    if (Pages.size() == 1) return QCoreApplication::translate("neb", "page %1").arg(First);
    return QCoreApplication::translate("neb", "%1 pages, first on page %2")
        .arg(Pages.size())
        .arg(First);
}

QString Inches(double Length) {
    return Decimal(Length, 2);
}

}  // namespace

QStringList ReachWarnings(const PrintDocument& Document, const std::vector<int>& Pages,
                          const PrintSheet& Sheet) {
    const QRectF Paper({}, Sheet.Size);
    const auto OffPaper = PagesBeyond(Document, Pages, Paper);
    if (!OffPaper.empty())
        return {QCoreApplication::translate(
                    "neb", "The paper, %1 by %2 inches, is too small for what is on %3.")
                    .arg(Inches(Sheet.Size.width()), Inches(Sheet.Size.height()), Named(OffPaper))};
    const auto InMargin = PagesBeyond(Document, Pages, Paper.marginsRemoved(Sheet.Blank));
    if (InMargin.empty()) return {};
    return {QCoreApplication::translate(
                "neb",
                "The printer cannot reach so near to the edge of the paper as pictures lie "
                "on %1: they will be cut off there.")
                .arg(Named(InMargin))};
}

}  // namespace neb
