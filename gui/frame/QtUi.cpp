#include "frame/QtUi.h"

#include "ViewRegistry.h"
#include "frame/Dispatch.h"
#include "frame/FileFilter.h"
#include "frame/Form.h"
#include "frame/FormBinder.h"
#include "frame/MainWindow.h"
#include "frame/ReportPreview.h"
#include "frame/ScreenMenu.h"
#include "frame/ScriptedUi.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tallimark {

namespace {

// A dialog's end gives the keyboard back to the window it was opened from, with or without a
// window manager to hand it over.
class KeyboardBack {
public:
    explicit KeyboardBack(QWidget* to) : to_(to) {}
    ~KeyboardBack() {
        if (to_ && to_->isVisible()) to_->activateWindow();
    }
    KeyboardBack(const KeyboardBack&) = delete;
    KeyboardBack& operator=(const KeyboardBack&) = delete;

private:
    QPointer<QWidget> to_;
};

// A screen shown modally goes only when its model hides it: Esc is a key for the screen's
// handlers, and the close box asks the model.
class ModalDialog : public QDialog {
public:
    using QDialog::QDialog;
    void reject() override {}
};

const std::pair<MsgAnswer, QMessageBox::StandardButton> kAnswers[] = {
    {MsgAnswer::Ok, QMessageBox::Ok},         {MsgAnswer::Cancel, QMessageBox::Cancel},
    {MsgAnswer::Abort, QMessageBox::Abort},   {MsgAnswer::Retry, QMessageBox::Retry},
    {MsgAnswer::Ignore, QMessageBox::Ignore}, {MsgAnswer::Yes, QMessageBox::Yes},
    {MsgAnswer::No, QMessageBox::No}};

QMessageBox::StandardButton buttonOf(MsgAnswer answer) {
    for (const auto& [a, b] : kAnswers)
        if (a == answer) return b;
    return QMessageBox::Ok;
}

MsgAnswer answerOf(int button) {
    for (const auto& [a, b] : kAnswers)
        if (b == button) return a;
    return MsgAnswer::Cancel;
}

QMessageBox::StandardButtons buttonsOf(MsgButtons buttons) {
    switch (buttons) {
    case MsgButtons::Ok:
        return QMessageBox::Ok;
    case MsgButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgButtons::AbortRetryIgnore:
        return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case MsgButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MsgButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MsgButtons::RetryCancel:
        return QMessageBox::Retry | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon iconOf(MsgIcon icon) {
    switch (icon) {
    case MsgIcon::None:
        return QMessageBox::NoIcon;
    case MsgIcon::Critical:
        return QMessageBox::Critical;
    case MsgIcon::Question:
        return QMessageBox::Question;
    case MsgIcon::Exclamation:
        return QMessageBox::Warning;
    case MsgIcon::Information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

QString qs(const std::string& s) {
    return QString::fromStdString(s);
}

// A view of fixed size makes a window that grows and shrinks with it, as fields come and go.
void followFixedSize(QWidget& host, const QWidget& view) {
    if (view.layout() && host.layout() && view.layout()->sizeConstraint() == QLayout::SetFixedSize)
        host.layout()->setSizeConstraint(QLayout::SetFixedSize);
}

// The area puts a new window beside the others, sized before its view has laid itself out: once
// it has, the window takes the size its view asked for (asked: invalid when it asked none), is
// moved back inside the area, and a window larger than the area is cut to it (its view is laid
// out to be used at that size).
void moveInside(QMdiSubWindow& sub) {
    const QSize area = sub.mdiArea()->viewport()->size();
    sub.move(std::max(0, std::min(sub.x(), area.width() - sub.width())),
             std::max(0, std::min(sub.y(), area.height() - sub.height())));
}

// A window whose view asks for more room after it opened (a list taking its columns) grows to
// it, within the area, and is moved back inside the area as it grows.
class InsideOnGrowth : public QObject {
public:
    explicit InsideOnGrowth(QMdiSubWindow& sub) : QObject(&sub), sub_(sub) {
        sub.installEventFilter(this);
        sub.widget()->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &sub_ && event->type() == QEvent::Resize) moveInside(sub_);
        if (watched == sub_.widget() && event->type() == QEvent::LayoutRequest) {
            const QSize frame = sub_.size() - sub_.widget()->size();
            const QSize wanted =
                sub_.widget()->minimumSizeHint().expandedTo(sub_.widget()->minimumSize()) + frame;
            if (wanted.width() > sub_.width() || wanted.height() > sub_.height())
                sub_.resize(sub_.size().expandedTo(wanted).boundedTo(sub_.mdiArea()->viewport()->size()));
        }
        return false;
    }

private:
    QMdiSubWindow& sub_;
};

void keepInside(QMdiSubWindow& sub, QSize asked) {
    QTimer::singleShot(0, &sub, [&sub, asked] {
        const QSize area = sub.mdiArea()->viewport()->size();
        const QSize frame = sub.size() - sub.widget()->size();
        sub.resize(sub.size().expandedTo(sub.sizeHint()).expandedTo(asked + frame).boundedTo(area));
        moveInside(sub);
        new InsideOnGrowth(sub);
    });
}

} // namespace

QtUi::QtUi(Answerer answerer) : answerer_(std::move(answerer)) {}

QtUi::~QtUi() {
    // The models may be gone already: stop every view first, then close the windows, the
    // subwindows going with the main frame.
    if (main_) disconnect(&main_->mdiArea(), nullptr, this, nullptr);
    std::vector<QPointer<QWidget>> hosts;
    for (auto& [form, shown] : shown_) {
        shown.binder->detach();
        hosts.emplace_back(shown.host);
    }
    for (const QPointer<QWidget>& host : hosts)
        delete host.data();
}

MsgAnswer QtUi::msgBox(const MsgBox& box) {
    ++boxesShown_;
    showChanges();
    if (answerer_) return answerer_(box);
    const KeyboardBack back(activeWindow());
    QMessageBox message(iconOf(box.icon), qs(box.title), qs(box.text), buttonsOf(box.buttons),
                        activeWindow());
    message.setDefaultButton(buttonOf(defaultAnswer(box.buttons)));
    // The box wants an answer: the wait cursor does not belong over it.
    if (busy_) QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int clicked = message.exec();
    if (busy_) QApplication::restoreOverrideCursor();
    return answerOf(clicked);
}

void QtUi::showProgress() {
    // Paints only: a click or key during the step would reach models that are mid-way.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtUi::setBusy(bool busy) {
    // The screens set and clear the busy cursor as a flag; Qt's override cursors stack.
    if (busy == busy_) return;
    busy_ = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtUi::showChanges() {
    // A box or a modal screen waits for the desk mid-way through a handler: the screens behind
    // it show the figures of that moment, not those of the last event.
    for (const auto& [form, shown] : shown_)
        form->flush();
}

void QtUi::present(Form& form, QWidget* host, QWidget* view, FormBinder* binder, QDialog* dialog) {
    host->installEventFilter(this);
    shown_[&form] = {host, view, binder, dialog};
    binder->attach();
}

QtUi::Shown QtUi::release(Form& form) {
    auto it = shown_.find(&form);
    const Shown shown = it->second;
    shown_.erase(it);
    shown.binder->detach();
    form.setListener(nullptr);
    if (shown.host == main_) main_ = nullptr;
    return shown;
}

void QtUi::showModal(Form& form) {
    View view = makeView(form);
    const KeyboardBack back(activeWindow());
    auto* dialog = new ModalDialog(activeWindow());
    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    if (const QWidget* menu = screenMenuOf(*view.widget)) {
        auto* bar = new QMenuBar;
        bar->addActions(menu->actions());
        layout->setMenuBar(bar);
    }
    layout->addWidget(view.widget);
    followFixedSize(*dialog, *view.widget);
    connect(view.widget, &QWidget::windowTitleChanged, dialog, &QWidget::setWindowTitle);
    present(form, dialog, view.widget, view.binder, dialog);
    showChanges();
    if (form.visible()) dialog->exec();
    // formHidden ends the dialog; a dialog ended otherwise still lets its screen go.
    if (shown_.count(&form)) release(form);
    delete dialog;
}

void QtUi::showForm(Form& form) {
    if (auto it = shown_.find(&form); it != shown_.end()) {
        QWidget* host = it->second.host;
        if (auto* sub = qobject_cast<QMdiSubWindow*>(host)) sub->mdiArea()->setActiveSubWindow(sub);
        host->raise();
        host->activateWindow();
        return;
    }
    View view = makeView(form);
    QWidget* host = view.widget;
    const bool wasPresenting = std::exchange(presenting_, true);
    if (auto* frame = dynamic_cast<MainWindow*>(view.widget)) {
        main_ = frame;
        connect(&frame->mdiArea(), &QMdiArea::subWindowActivated, this, &QtUi::subWindowActivated);
    } else if (main_) {
        const QSize asked = view.widget->testAttribute(Qt::WA_Resized) ? view.widget->size() : QSize();
        QMdiSubWindow* sub = main_->mdiArea().addSubWindow(view.widget);
        keepInside(*sub, asked);
        host = sub;
    }
    // Without the main frame a screen stands as a window of its own.
    followFixedSize(*host, *view.widget);
    present(form, host, view.widget, view.binder, nullptr);
    // The frame the desk works in all day takes the whole screen.
    if (host == main_) {
        // Sized to the screen as well: without a window manager maximising does nothing.
        if (const QScreen* screen = QGuiApplication::primaryScreen())
            host->setGeometry(screen->availableGeometry());
        host->showMaximized();
        // The keyboard goes to the frame from the login that went before it, with or without a
        // window manager to hand it over.
        host->activateWindow();
    } else
        host->show();
    if (qobject_cast<QMdiSubWindow*>(host)) lastActive_ = host;
    presenting_ = wasPresenting;
}

void QtUi::subWindowActivated(QWidget* sub) {
    // Nothing active is the frame losing the keyboard to a dialog; coming back to the same
    // window from one is no change of screen.
    if (!sub || sub == lastActive_ || presenting_) return;
    lastActive_ = sub;
    for (const auto& [form, shown] : shown_)
        if (shown.host == sub) {
            Form& activated = *form;
            dispatch(activated, [&activated] { activated.fire("Form", EventType::Activate); });
            return;
        }
}

void QtUi::statusMessage(const std::string& text) {
    if (main_) main_->statusBar()->showMessage(qs(text), 4000);
}

void QtUi::formHidden(Form& form) {
    if (!shown_.count(&form)) return;
    const Shown shown = release(form);
    if (shown.dialog) {
        shown.dialog->done(0); // showModal disposes of it once its loop has run out
        return;
    }
    shown.host->hide();
    if (shown.host == lastActive_) lastActive_ = nullptr;
    if (auto* sub = qobject_cast<QMdiSubWindow*>(shown.host)) sub->mdiArea()->removeSubWindow(sub);
    // Not at once: the window's own event may be what hid the screen.
    shown.host->deleteLater();
}

bool QtUi::eventFilter(QObject* watched, QEvent* event) {
    // Esc that no control of a screen took (a screen of a caption alone has none) closes it.
    const bool escape = event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && watched != main_;
    if (event->type() != QEvent::Close && !escape) return false;
    for (const auto& [form, shown] : shown_) {
        if (shown.host != watched) continue;
        event->ignore();
        Form& closing = *form;
        dispatch(closing, [&closing] { closing.requestClose(); });
        return true;
    }
    return false;
}

std::optional<std::string> QtUi::fileDialog(const FileDialog& dialog) {
    QString start = qs(dialog.initialDir);
    if (!dialog.fileName.empty()) start = QDir(start).filePath(qs(dialog.fileName));
    const KeyboardBack back(activeWindow());
    QFileDialog box(activeWindow(), qs(dialog.title), start, qtFileFilter(dialog.filter));
    box.setAcceptMode(dialog.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setFileMode(dialog.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    box.setDefaultSuffix(qs(dialog.defaultExt));
    box.setOption(QFileDialog::DontConfirmOverwrite, !dialog.confirmOverwrite);
    if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return std::nullopt;
    return QDir::toNativeSeparators(box.selectedFiles().constFirst()).toStdString();
}

void QtUi::endProgram() {
    // The model has unloaded its screens and closed the store where the flow asks for it.
    for (auto& [form, shown] : shown_) {
        shown.binder->detach();
        shown.host->hide();
    }
    if (busy_) QApplication::restoreOverrideCursor();
    std::exit(0);
}

QWidget* QtUi::viewOf(const Form& form) const {
    auto it = shown_.find(const_cast<Form*>(&form));
    return it == shown_.end() ? nullptr : it->second.view;
}

void QtUi::showReport(const ReportDocument& document) {
    showReportPreview(document, activeWindow());
}

QWidget* QtUi::activeWindow() const {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow()) return active;
    return main_;
}

} // namespace tallimark
