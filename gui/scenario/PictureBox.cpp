#include "scenario/PictureBox.h"

#include "canvas/ImageCanvas.h"
#include "frame/Dispatch.h"
#include "frame/Form.h"

#include <QMouseEvent>
#include <QPainter>

namespace tallimark {

PictureBox::PictureBox(Form& form, PictureScreen& screen, const char* name)
    : form_(form), screen_(screen), name_(name) {
    setObjectName(QString::fromLatin1(name));
    setFixedSize(screen.picture().width(), screen.picture().height());
    setMouseTracking(true);
}

void PictureBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (const auto* image = dynamic_cast<const render::ImageCanvas*>(&screen_.picture()))
        painter.drawImage(0, 0, image->image());
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    dispatch(form_, [&] {
        Event move{EventType::MouseMove};
        move.x = at.x();
        move.y = at.y();
        form_.fire(name_, move);
    });
}

} // namespace tallimark
