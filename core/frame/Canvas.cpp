#include "frame/Canvas.h"

#include <array>
#include <cmath>

namespace tallimark {

namespace {

constexpr Rgb kWhite = RGB(255, 255, 255);

// A surface that keeps no pixels: text measures as a fixed cell, every point reads white.
class BlankCanvas : public Canvas {
public:
    using Canvas::Canvas;

protected:
    void clearPixels(Rgb) override {}
    void linePixels(double, double, double, double, Rgb, int, bool) override {}
    void textPixels(double, double, const std::string&, Rgb) override {}
    double textPixelWidth(const std::string& text) const override {
        return 7.0 * static_cast<double>(text.size());
    }
    double textPixelHeight(const std::string&) const override { return 14; }
    Rgb pixel(int, int) const override { return kWhite; }
};

} // namespace

Rgb QBColor(int index) {
    static constexpr std::array<Rgb, 16> kTable = {
        RGB(0, 0, 0),       RGB(0, 0, 128),   RGB(0, 128, 0),   RGB(0, 128, 128),
        RGB(128, 0, 0),     RGB(128, 0, 128), RGB(128, 128, 0), RGB(192, 192, 192),
        RGB(128, 128, 128), RGB(0, 0, 255),   RGB(0, 255, 0),   RGB(0, 255, 255),
        RGB(255, 0, 0),     RGB(255, 0, 255), RGB(255, 255, 0), RGB(255, 255, 255)};
    return kTable.at(static_cast<size_t>(index));
}

Canvas::Canvas(int width, int height)
    : width_(width), height_(height), scaleWidth_(width), scaleHeight_(height) {}

void Canvas::Scale(double left, double top, double right, double bottom) {
    left_ = left;
    top_ = top;
    scaleWidth_ = right - left;
    scaleHeight_ = bottom - top;
}

double Canvas::pixelX(double x) const {
    return (x - left_) * width_ / scaleWidth_;
}

double Canvas::pixelY(double y) const {
    return (y - top_) * height_ / scaleHeight_;
}

double Canvas::userX(double px) const {
    return left_ + px * scaleWidth_ / width_;
}

double Canvas::userY(double py) const {
    return top_ + py * scaleHeight_ / height_;
}

void Canvas::Cls() {
    clearPixels(kWhite);
}

void Canvas::Line(double x1, double y1, double x2, double y2, Rgb color) {
    // A wide pen draws solid whatever the style, as the desk's surfaces always have.
    const bool dotted = drawStyle == DrawStyle::Dot && drawWidth <= 1;
    linePixels(pixelX(x1), pixelY(y1), pixelX(x2), pixelY(y2), color, drawWidth, dotted);
}

void Canvas::Print(double x, double y, const std::string& text) {
    textPixels(pixelX(x), pixelY(y), text, QBColor(0));
}

double Canvas::TextWidth(const std::string& text) const {
    return textPixelWidth(text) * scaleWidth_ / width_;
}

double Canvas::TextHeight(const std::string& text) const {
    return textPixelHeight(text) * scaleHeight_ / height_;
}

Rgb Canvas::Point(double x, double y) const {
    return pixelColor(static_cast<int>(std::floor(pixelX(x))), static_cast<int>(std::floor(pixelY(y))));
}

Rgb Canvas::pixelColor(int px, int py) const {
    if (px < 0 || py < 0 || px >= width_ || py >= height_) return kWhite;
    return pixel(px, py);
}

std::unique_ptr<Canvas> makeBlankCanvas(int width, int height) {
    return std::make_unique<BlankCanvas>(width, height);
}

} // namespace tallimark
