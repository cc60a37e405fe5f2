#include "frame/ReportPreview.h"

#include "ReportPainter.h"
#include "reports/ReportDocument.h"

#include <QPrintPreviewDialog>
#include <QPrinter>

#include <memory>

namespace tallimark {

void showReportPreview(const ReportDocument& doc, QWidget* parent) {
    auto pages = std::make_shared<ReportDocument>(doc);
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(QString::fromStdString(doc.title));
    auto* dialog = new QPrintPreviewDialog(printer.get(), parent);
    dialog->setObjectName(QStringLiteral("ReportPreview"));
    dialog->setWindowTitle(QString::fromStdString(doc.title));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The printer lives as long as the dialog that paints on it.
    QObject::connect(dialog, &QPrintPreviewDialog::paintRequested, dialog,
                     [pages, printer](QPrinter* target) { render::paintReport(*pages, *target); });
    dialog->show();
}

} // namespace tallimark
