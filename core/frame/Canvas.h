#pragma once
// A drawing surface as the graph screens use it: a user scale laid over a rectangle of pixels,
// solid and dotted lines, text and its extent, and the colour at a point read back. The mapping
// from the scale to pixels lives here, once; a painter behind the surface (the rendering layer)
// only sets pixels. Without one, a blank surface keeps the screens working: it measures text and
// keeps no pixels.
#include "frame/Grid.h"

#include <functional>
#include <memory>
#include <string>

namespace tallimark {

// The desk's 16-colour table: 0 black, 1 blue, 2 green, 3 cyan, 4 red, 5 magenta, 6 brown,
// 7 light grey, 8 grey, 9 light blue, 10 light green, 11 light cyan, 12 light red, 13 light
// magenta, 14 yellow, 15 white.
Rgb QBColor(int index);

enum class DrawStyle { Solid = 0, Dot = 2 };

class Canvas {
public:
    Canvas(int width, int height);
    virtual ~Canvas() = default;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    int width() const { return width_; }
    int height() const { return height_; }

    // Scale: the user coordinates of the left, top, right and bottom edges. A bottom below the
    // top makes y grow upwards, as a graph's does.
    void Scale(double left, double top, double right, double bottom);
    double pixelX(double x) const;
    double pixelY(double y) const;
    double userX(double px) const;
    double userY(double py) const;

    DrawStyle drawStyle = DrawStyle::Solid;
    int drawWidth = 1;

    // Cls: the whole surface back to its white ground.
    void Cls();
    void Line(double x1, double y1, double x2, double y2, Rgb color = QBColor(0));
    // Black text whose top left corner stands at (x, y).
    void Print(double x, double y, const std::string& text);
    // The text's extent in user units. On a scale whose y grows upwards the height is negative,
    // so that y - TextHeight/2 centres a line of text on y.
    double TextWidth(const std::string& text) const;
    double TextHeight(const std::string& text) const;
    // Point: the colour of the pixel under a user point; white off the surface.
    Rgb Point(double x, double y) const;
    // The colour of a pixel, for a pointer that the window reports in pixels.
    Rgb pixelColor(int px, int py) const;

protected:
    virtual void clearPixels(Rgb ground) = 0;
    virtual void linePixels(double x1, double y1, double x2, double y2, Rgb color, int width,
                            bool dotted) = 0;
    virtual void textPixels(double x, double y, const std::string& text, Rgb color) = 0;
    virtual double textPixelWidth(const std::string& text) const = 0;
    virtual double textPixelHeight(const std::string& text) const = 0;
    virtual Rgb pixel(int px, int py) const = 0;

private:
    int width_, height_;
    double left_ = 0, top_ = 0, scaleWidth_ = 1, scaleHeight_ = 1;
};

// Makes the surfaces of the screens; the window and the batch driver hand the App one that
// paints.
using CanvasMaker = std::function<std::unique_ptr<Canvas>(int width, int height)>;
std::unique_ptr<Canvas> makeBlankCanvas(int width, int height);

// A screen with a drawing surface, for the views and the batch driver that show or save it.
class PictureScreen {
public:
    virtual ~PictureScreen() = default;
    virtual Canvas& picture() = 0;
};

} // namespace tallimark
