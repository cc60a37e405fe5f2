#include "frame/ReportPreview.h"

#include "ReportPainter.h"
#include "reports/ReportDocument.h"

#include <QGuiApplication>
#include <QPointer>
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
    // The preview takes the keyboard, so that Esc closes it, and gives it back to the window it
    // was asked from, with or without a window manager to hand it over.
    QObject::connect(dialog, &QDialog::finished, dialog, [back = QPointer<QWidget>(parent)] {
        if (back && back->isVisible()) back->activateWindow();
    });
    dialog->show();
    dialog->activateWindow();
}

} // namespace tallimark
