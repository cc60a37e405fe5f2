#pragma once
// A screen's command buttons in one row, pushed to the right as a dialog's are.
#include "frame/Named.h"

#include <QHBoxLayout>
#include <QPushButton>

#include <initializer_list>

namespace tallimark {

inline QHBoxLayout* buttonRow(std::initializer_list<const char*> names) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (const char* name : names)
        row->addWidget(named<QPushButton>(name));
    return row;
}

} // namespace tallimark
