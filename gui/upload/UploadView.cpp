#include "upload/UploadView.h"

#include "frame/ButtonRow.h"
#include "frame/Named.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <string_view>

namespace tallimark {

UploadView::UploadView() {
    auto* fields = new QFormLayout;
    for (const auto& [label, name] : {std::pair{"Symbol", "TxtSymbol"},
                                      {"Description", "TxtDesc"},
                                      {"Market Price", "TxtMktPrice"},
                                      {"Expiry", "TxtExpDtN"}}) {
        auto* field = named<QLineEdit>(name);
        if (std::string_view(name) == "TxtMktPrice") field->setAlignment(Qt::AlignRight); // a figure
        fields->addRow(label, field);
    }
    auto* file = new QHBoxLayout;
    auto* path = named<QLineEdit>("TxtFileNm");
    path->setMinimumWidth(320);
    file->addWidget(path);
    file->addWidget(named<QPushButton>("Command1"));
    fields->addRow("File", file);
    // Below the file, where the Tab key goes next.
    fields->addRow("Trade Date", named<QLineEdit>("DTPicker1"));
    auto* layouts = new QHBoxLayout;
    layouts->addWidget(named<QRadioButton>("Option1(0)"));
    layouts->addWidget(named<QRadioButton>("Option1(1)"));
    fields->addRow("Layout", layouts);
    fields->addRow("", named<QLabel>("LblLines"));
    QHBoxLayout* buttons = buttonRow({"CmdUpload", "CmdDelete", "Command2"});
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(fields);
    layout->addLayout(buttons);
}

} // namespace tallimark
