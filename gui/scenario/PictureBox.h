#pragma once
// A screen's drawing surface in the window: shows the image the model drew on its canvas, and
// tells the model where the pointer moves so that it can set the surface's tool tip.
#include <QWidget>

#include <string>

namespace tallimark {

class Form;
class PictureScreen;

class PictureBox : public QWidget {
public:
    PictureBox(Form& form, PictureScreen& screen, const char* name);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    Form& form_;
    PictureScreen& screen_;
    std::string name_;
};

} // namespace tallimark
