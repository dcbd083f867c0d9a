// SPDX-License-Identifier: GPL-3.0-or-later
// The port's boxes and file dialogs.
#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSplitter>
#include <QTimer>
#include <QTreeView>
#include <algorithm>
#include <array>

#include "qt/file_filter.h"
#include "qt/qt_port.h"
#include "rendering/qt_text.h"

namespace kervol {
namespace {

struct AnswerButton {
    Answer answer;
    QMessageBox::StandardButton button;
};

constexpr std::array<AnswerButton, 7> kAnswers = {{
    {Answer::OK, QMessageBox::Ok},
    {Answer::Cancel, QMessageBox::Cancel},
    {Answer::Abort, QMessageBox::Abort},
    {Answer::Retry, QMessageBox::Retry},
    {Answer::Ignore, QMessageBox::Ignore},
    {Answer::Yes, QMessageBox::Yes},
    {Answer::No, QMessageBox::No},
}};

constexpr QSize kFileDialog(820, 520);

QMessageBox::StandardButton Button_Of(Answer answer) {
    for (const AnswerButton& pair : kAnswers)
        if (pair.answer == answer) return pair.button;
    return QMessageBox::NoButton;
}

QMessageBox::StandardButtons Qt_Buttons(Buttons buttons) {
    switch (buttons) {
        case Buttons::OK:
            return QMessageBox::Ok;
        case Buttons::OKCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::AbortRetryIgnore:
            return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon Qt_Icon(Icon icon) {
    switch (icon) {
        case Icon::None:
            return QMessageBox::NoIcon;
        case Icon::Exclamation:
            return QMessageBox::Warning;
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

/// A box breaks lines that are not very long once more; texts are broken where they should be.
void Keep_Lines(QMessageBox& box) {
    constexpr int kWidest = 640;
    auto* label = box.findChild<QLabel*>("qt_msgbox_label");
    if (label == nullptr) return;
    const int width = label->fontMetrics().size(0, box.text()).width();
    label->setMinimumWidth(std::min(width, kWidest));
}

/// The ending that the patterns of a name filter ask for; empty where they take any.
QString Suffix_Of(const QString& filter) {
    const qsizetype open = filter.lastIndexOf("(*.");
    const QString suffix = open < 0 ? QString() : filter.mid(open + 3, filter.size() - open - 4);
    return suffix.contains(' ') || suffix.contains('*') ? QString() : suffix;
}

/// Another kind of file is chosen: the name that stands in the dialog takes its ending.
void Follow_Filter(QFileDialog& dialog, const QString& filter) {
    const QString suffix = Suffix_Of(filter);
    if (suffix.isEmpty()) return;
    dialog.setDefaultSuffix(suffix);
    auto* field = dialog.findChild<QLineEdit*>();
    if (field == nullptr || field->text().isEmpty()) return;
    const QFileInfo named(field->text());
    field->setText(field->text().chopped(named.suffix().isEmpty() ? 0 : named.suffix().size() + 1) + "." +
                   suffix);
}

/// For whole names of folders and dates of files.
void Make_Room(QFileDialog& dialog) {
    dialog.resize(dialog.sizeHint().expandedTo(kFileDialog));
    if (auto* parts = dialog.findChild<QSplitter*>("splitter")) parts->setSizes({160, kFileDialog.width()});
    if (auto* files = dialog.findChild<QTreeView*>("treeView"))
        for (int column = 1; column < 4; ++column)
            files->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
}

QString Folder_Of(const std::string& path) {
    const QFileInfo file(Qt_Text(path));
    return path.empty() || !file.dir().exists() ? QString() : file.absolutePath();
}

/// The keys go to the form again, where no window manager sees to that.
void Bring_Back(QWidget* form) {
    if (form != nullptr) form->activateWindow();
}

/// A box that a lost focus brought up by a click on a button takes the release of the mouse. The press
/// reaches the button when the box has closed, and would leave it down.
void Release_Stuck_Buttons(QWidget* form) {
    if (form == nullptr) return;
    QTimer::singleShot(0, form, [form] {
        if (QGuiApplication::mouseButtons() != Qt::NoButton) return;
        for (auto* button : form->findChildren<QAbstractButton*>()) button->setDown(false);
    });
}

}  // namespace

Answer QtPort::Show_Message(const MessageBox& box) {
    if (ended_) return box.preset;
    Push_All();
    // A person is asked: the pointer that says "wait" would be wrong until they have answered.
    const bool busy = busy_;
    Set_Pointer(Pointer::Default);
    QMessageBox shown(Front_Window());
    shown.setWindowTitle(Qt_Text(screens_->program.model.ProgramTitle));
    shown.setTextFormat(Qt::PlainText);
    shown.setText(Qt_Lines(box.text));
    Keep_Lines(shown);
    shown.setIcon(Qt_Icon(box.icon));
    shown.setStandardButtons(Qt_Buttons(box.buttons));
    shown.setDefaultButton(Button_Of(box.preset));
    // Escape must not abandon a run.
    if (box.buttons == Buttons::AbortRetryIgnore) shown.setEscapeButton(Button_Of(box.preset));
    const int pressed = shown.exec();
    Bring_Back(Front_Window());
    if (busy) Set_Pointer(Pointer::Busy);
    Release_Stuck_Buttons(Front_Window());
    for (const AnswerButton& pair : kAnswers)
        if (pair.button == pressed) return pair.answer;
    return box.preset;
}

std::optional<std::string> QtPort::Ask_File(const FileDialog& dialog, bool saving) {
    if (ended_) return std::nullopt;
    Push_All();
    QFileDialog shown(Front_Window(), Qt_Text(dialog.title));
    shown.setOption(QFileDialog::DontUseNativeDialog);
    shown.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    shown.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    shown.setNameFilters(Qt_Name_Filters(dialog.filter));
    QString folder = Folder_Of(screens_->program.model.ModelPath);
    if (folder.isEmpty()) folder = last_folder_.empty() ? QDir::currentPath() : Qt_Text(last_folder_);
    shown.setDirectory(folder);
    const QString name = Qt_Text(dialog.name);
    shown.selectFile(name);
    if (saving) {
        shown.setDefaultSuffix(QFileInfo(name).suffix());
        QObject::connect(&shown, &QFileDialog::filterSelected, &shown,
                         [&shown](const QString& filter) { Follow_Filter(shown, filter); });
    }
    Make_Room(shown);
    // What is typed takes the place of the proposal.
    if (auto* field = shown.findChild<QLineEdit*>()) QTimer::singleShot(0, field, &QLineEdit::selectAll);
    const int pressed = shown.exec();
    Bring_Back(Front_Window());
    if (pressed != QDialog::Accepted || shown.selectedFiles().isEmpty()) return std::nullopt;
    last_folder_ = shown.directory().absolutePath().toStdString();
    return QDir::toNativeSeparators(shown.selectedFiles().first()).toStdString();
}

std::optional<std::string> QtPort::Ask_File_To_Open(const FileDialog& dialog) {
    return Ask_File(dialog, false);
}

std::optional<std::string> QtPort::Ask_File_To_Save(const FileDialog& dialog) {
    return Ask_File(dialog, true);
}

}  // namespace kervol
