#include "frame/ReportPreview.h"

#include "ReportPainter.h"
#include "reports/ReportDocument.h"

#include <QGuiApplication>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>

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
    // Qt's default size shows an A4 page too small to read: most of the screen it stands on.
    if (const QScreen* screen = (parent ? parent->screen() : QGuiApplication::primaryScreen()))
        dialog->resize(screen->availableSize() * 0.8);
    // The printer lives as long as the dialog that paints on it.
    QObject::connect(dialog, &QPrintPreviewDialog::paintRequested, dialog,
                     [pages, printer](QPrinter* target) { render::paintReport(*pages, *target); });
    // A page's width fills the view: an upright A4 page fitted whole is too small to read.
    if (auto* view = dialog->findChild<QPrintPreviewWidget*>()) view->fitToWidth();
    dialog->show();
    // The keys (Esc closes, the arrows turn pages) reach the preview without a click into it first.
    dialog->activateWindow();
}

} // namespace tallimark
