#include "frame/CaptionView.h"

#include "frame/Form.h"

#include <QLabel>
#include <QVBoxLayout>

namespace tallimark {

CaptionView::CaptionView(Form& form) {
    auto* caption = new QLabel(QString::fromStdString(form.caption()));
    caption->setAlignment(Qt::AlignCenter);
    QFont font = caption->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    caption->setFont(font);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    setMinimumSize(420, 160);
}

} // namespace tallimark
