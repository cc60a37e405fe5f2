#pragma once
// The graph screens' drawing surface painted with Qt's painter onto an image, without widgets:
// the window shows the image, batch writes it to a PNG, a test reads its pixels. Lines are drawn
// without antialiasing so that every pixel of a line has the line's own colour, which the pointer's
// read-out depends on.
#include "frame/Canvas.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>

#include <memory>
#include <string>

namespace tallimark::render {

class ImageCanvas : public Canvas {
public:
    ImageCanvas(int width, int height);

    const QImage& image() const { return image_; }
    bool savePng(const std::string& path) const;

protected:
    void clearPixels(Rgb ground) override;
    void linePixels(double x1, double y1, double x2, double y2, Rgb color, int width, bool dotted) override;
    void textPixels(double x, double y, const std::string& text, Rgb color) override;
    double textPixelWidth(const std::string& text) const override;
    double textPixelHeight(const std::string& text) const override;
    Rgb pixel(int px, int py) const override;

private:
    QImage image_;
    QFont font_;
    QFontMetricsF metrics_;
};

// Text needs a Qt application for its fonts: batch has none, so one is made on first use, on the
// offscreen platform unless another was chosen.
void ensureGuiApplication();
// The maker the App hands its graph screens.
CanvasMaker imageCanvasMaker();

} // namespace tallimark::render
