#include "ReportPainter.h"

#include "GuiApplication.h"
#include "reports/ReportDocument.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include <stdexcept>

namespace tallimark::render {

namespace {

struct Look {
    double points;
    bool bold;
};

Look lookOf(LineStyle s) {
    switch (s) {
    case LineStyle::Title:
        return {14, true};
    case LineStyle::Heading:
        return {10, true};
    case LineStyle::ColumnHeads:
    case LineStyle::Subtotal:
    case LineStyle::Total:
        return {9, true};
    case LineStyle::Text:
    case LineStyle::Row:
        return {9, false};
    }
    return {9, false};
}

Qt::Alignment qtAlign(Align a) {
    switch (a) {
    case Align::Left:
        return Qt::AlignLeft;
    case Align::Right:
        return Qt::AlignRight;
    case Align::Center:
        return Qt::AlignHCenter;
    }
    return Qt::AlignLeft;
}

class PagePainter {
public:
    PagePainter(QPainter& p, const ReportDocument& doc, double dotsPerMm) : p_(p), doc_(doc), k_(dotsPerMm) {}

    void page(const ReportPage& page) {
        for (const auto& line : page.lines)
            draw(line);
        footer(page);
    }

private:
    double mm(double v) const { return v * k_; }
    void setFont(double points, bool bold) {
        QFont f(QStringLiteral("Sans Serif"));
        f.setPointSizeF(points);
        f.setBold(bold);
        p_.setFont(f);
    }
    void rule(double y) { p_.drawLine(QPointF(0, mm(y)), QPointF(mm(doc_.pageWidth()), mm(y))); }
    void draw(const ReportLine& line) {
        const Look look = lookOf(line.style);
        setFont(look.points, look.bold);
        const QFontMetricsF metrics(p_.font(), p_.device());
        for (const auto& cell : line.cells) {
            // A little air between neighbouring columns.
            const QRectF box(mm(cell.x + 1), mm(line.y), mm(cell.width - 2), mm(line.height));
            const QString text =
                metrics.elidedText(QString::fromStdString(cell.text), Qt::ElideRight, box.width());
            p_.drawText(box, qtAlign(cell.align) | Qt::AlignVCenter, text);
        }
        if (line.style == LineStyle::ColumnHeads) rule(line.y + line.height);
        if (line.style == LineStyle::Subtotal || line.style == LineStyle::Total) rule(line.y + 0.5);
    }
    void footer(const ReportPage& page) {
        const double top = doc_.pageHeight() - 6;
        rule(top);
        setFont(8, false);
        const QRectF box(0, mm(top + 1), mm(doc_.pageWidth()), mm(5));
        p_.drawText(box, Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString("Printed " + doc_.printed));
        p_.drawText(box, Qt::AlignRight | Qt::AlignVCenter, QString::fromStdString(page.footer));
    }

    QPainter& p_;
    const ReportDocument& doc_;
    double k_;
};

} // namespace

void paintReport(const ReportDocument& doc, QPagedPaintDevice& device) {
    const auto orientation =
        doc.orientation == Orientation::Portrait ? QPageLayout::Portrait : QPageLayout::Landscape;
    const double m = ReportDocument::kMargin;
    device.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), orientation, QMarginsF(m, m, m, m), QPageLayout::Millimeter));
    QPainter painter(&device);
    PagePainter pages(painter, doc, device.logicalDpiX() / 25.4);
    for (size_t i = 0; i < doc.pages.size(); ++i) {
        if (i > 0) device.newPage();
        pages.page(doc.pages[i]);
    }
}

void writeReportPdf(const ReportDocument& doc, const std::string& path) {
    ensureGuiApplication();
    const QString file = QString::fromStdString(path);
    {
        QFile probe(file);
        if (!probe.open(QIODevice::WriteOnly)) throw std::runtime_error("cannot write " + path);
    }
    QPdfWriter writer(file);
    writer.setTitle(QString::fromStdString(doc.title));
    writer.setCreator(QStringLiteral("Tallimark"));
    writer.setResolution(300);
    paintReport(doc, writer);
}

} // namespace tallimark::render
