#pragma once
// A widget the binder finds: its objectName is the name of the model's control or grid.
#include <QString>

namespace tallimark {

template <class W> W* named(const char* name) {
    auto* widget = new W;
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

} // namespace tallimark
