#include "qt/QtDesktop.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#include <QTimer>

#include "qt/Dialogs.h"
#include "qt/HelpWindow.h"
#include "qt/PicturePainter.h"
#include "qt/ProgressWindow.h"
#include "qt/Text.h"
#include "ui/DocumentForm.h"
#include "ui/OneLine.h"

namespace vexora::qt {

namespace {

/// The document that is asked about; empty for none.
QString AskedAbout() {
    if (!ui::Forms::IsPresent()) return {};
    for (const ui::Form* form : ui::Forms::Current().OpenForms())
        if (const auto* document = dynamic_cast<const ui::DocumentForm*>(form))
            return ToQt(document->AskedAbout());
    return {};
}

} // namespace

QtDesktop::QtDesktop(Windows& windows, ui::FileSystem& files, std::vector<std::string> helpFolders)
    : windows_(windows), files_(files), helpFolders_(std::move(helpFolders)) {}

QWidget* QtDesktop::Parent() const {
    FormWindow* window = windows_.Front();
    return window && window->isVisible() ? window : nullptr;
}

// The hourglass must not stand over a question.
ui::Answer QtDesktop::Show(const ui::Message& message) {
    const bool waiting = QGuiApplication::overrideCursor() != nullptr;
    if (waiting) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    ProgressWindow::HideAll();
    const auto box = MakeMessageBox(message, Parent());
    if (const QString name = AskedAbout(); message.title.empty() && !name.isEmpty())
        box->setWindowTitle(name + QStringLiteral(" - Vexora"));
    box->exec();
    if (waiting) QGuiApplication::restoreOverrideCursor();
    return AnswerOf(*box, message);
}

std::optional<std::string> QtDesktop::Ask(const ui::Input& input) {
    ProgressWindow::HideAll();
    const auto box = MakeInputBox(input, Parent());
    if (box->exec() != QDialog::Accepted) return {};
    return ui::OneLine(FromQt(box->textValue()));
}

std::optional<std::string> QtDesktop::Choose(const ui::FileChoice& choice) {
    QFileDialog dialog(Parent(), choice.save ? QFileDialog::tr("Save") : QFileDialog::tr("Open"),
                       ToQt(choice.folder));
    dialog.setAcceptMode(choice.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(choice.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // the workbench asks by itself
    if (!choice.filter.empty()) {
        dialog.setNameFilters({ToQt(choice.filter), QFileDialog::tr("All files (*)")});
    }
    if (!choice.proposed.empty()) dialog.selectFile(ToQt(choice.proposed));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return FromQt(dialog.selectedFiles().constFirst());
}

std::string QtDesktop::ClipboardText() {
    return FromQt(QGuiApplication::clipboard()->text());
}

void QtDesktop::ClipboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(ToQt(text));
}

void QtDesktop::Hourglass(bool on) {
    if (on)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

std::unique_ptr<ui::Progress> QtDesktop::Begin(const ui::LongWork& work) {
    return std::make_unique<ProgressWindow>(work, Parent());
}

void QtDesktop::ShowHelp(int context) {
    for (const std::string& folder : helpFolders_) {
        if (HelpWindow::Show(folder + "/help", context, files_, Parent())) return;
    }
    Show({"There is no page of help for this topic (" + std::to_string(context) + ").", "Help",
          ui::MessageButtons::Ok, ui::Answer::Ok});
}

void QtDesktop::Print(const std::string& title, const std::string& text) {
    QPrinter printer;
    printer.setDocName(ToQt(title));
    QPrintDialog dialog(&printer, Parent());
    if (dialog.exec() != QDialog::Accepted) return;
    QTextDocument document;
    document.setPlainText(ToQt(text));
    document.print(&printer);
}

void QtDesktop::PrintPicture(const std::string& title, const ui::Picture& picture) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(ToQt(title));
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&printer, Parent());
    if (dialog.exec() == QDialog::Accepted) PrintOn(printer, picture);
}

std::optional<std::string> QtDesktop::PngOf(const ui::Picture& picture) {
    return PngBytes(picture);
}

void QtDesktop::RunModal(ui::Form& form) {
    const bool waiting = QGuiApplication::overrideCursor() != nullptr;
    if (waiting) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    ProgressWindow::HideAll();
    QEventLoop loop;
    const auto leave = [&] {
        if (!form.IsVisible()) loop.quit();
    };
    const int ticket = form.ShownChanged.Connect(leave);
    if (form.IsVisible()) loop.exec();
    form.ShownChanged.Disconnect(ticket);
    if (waiting) QGuiApplication::restoreOverrideCursor();
}

void QtDesktop::EndProgram() {
    QTimer::singleShot(0, qApp, [] {
        if (ui::Forms::IsPresent()) ui::Forms::Current().CloseAll();
        QCoreApplication::quit();
    });
}

} // namespace vexora::qt
