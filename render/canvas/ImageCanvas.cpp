#include "canvas/ImageCanvas.h"

#include <QGuiApplication>
#include <QPainter>

#include <cstdlib>

namespace tallimark::render {

namespace {

QColor qcolor(Rgb c) {
    return QColor(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF),
                  static_cast<int>((c >> 16) & 0xFF));
}

QFont graphFont() {
    ensureGuiApplication();
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    return font;
}

} // namespace

void ensureGuiApplication() {
    if (QCoreApplication::instance()) return;
    if (!std::getenv("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "tallimark";
    static char* argv[] = {name, nullptr};
    static QGuiApplication app(argc, argv);
}

ImageCanvas::ImageCanvas(int width, int height)
    : Canvas(width, height), image_(width, height, QImage::Format_RGB32), font_(graphFont()),
      metrics_(font_) {
    image_.fill(Qt::white);
}

bool ImageCanvas::savePng(const std::string& path) const {
    return image_.save(QString::fromStdString(path), "PNG");
}

void ImageCanvas::clearPixels(Rgb ground) {
    image_.fill(qcolor(ground));
}

void ImageCanvas::linePixels(double x1, double y1, double x2, double y2, Rgb color, int width, bool dotted) {
    QPainter p(&image_);
    p.setRenderHint(QPainter::Antialiasing, false);
    QPen pen(qcolor(color));
    pen.setWidth(width);
    pen.setStyle(dotted ? Qt::DotLine : Qt::SolidLine);
    pen.setCapStyle(Qt::FlatCap);
    p.setPen(pen);
    p.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void ImageCanvas::textPixels(double x, double y, const std::string& text, Rgb color) {
    QPainter p(&image_);
    p.setFont(font_);
    p.setPen(qcolor(color));
    p.drawText(QPointF(x, y + metrics_.ascent()), QString::fromStdString(text));
}

double ImageCanvas::textPixelWidth(const std::string& text) const {
    return metrics_.horizontalAdvance(QString::fromStdString(text));
}

double ImageCanvas::textPixelHeight(const std::string&) const {
    return metrics_.height();
}

Rgb ImageCanvas::pixel(int px, int py) const {
    const QRgb c = image_.pixel(px, py);
    return RGB(qRed(c), qGreen(c), qBlue(c));
}

CanvasMaker imageCanvasMaker() {
    return [](int width, int height) { return std::make_unique<ImageCanvas>(width, height); };
}

} // namespace tallimark::render
