#include "Globals.h"
#include "Prompts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// Long work shows the wait cursor; what it asks in between is answered with the ordinary one.
class OrdinaryCursor {
public:
    OrdinaryCursor() : m_pushed(QGuiApplication::overrideCursor() != nullptr) {
        if (m_pushed)
            QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~OrdinaryCursor() {
        if (m_pushed)
            QGuiApplication::restoreOverrideCursor();
    }
    Q_DISABLE_COPY_MOVE(OrdinaryCursor)

private:
    bool m_pushed;
};

/// The toolkit's own captions follow the system's language, not that of the interface.
void setCaptions(QMessageBox& box) {
    struct Caption {
        QMessageBox::StandardButton button;
        const char16_t* german;
        const char16_t* english;
    };
    static constexpr Caption captions[] = {
        {QMessageBox::Ok, u"OK", u"OK"},
        {QMessageBox::Cancel, u"Abbrechen", u"Cancel"},
        {QMessageBox::Yes, u"&Ja", u"&Yes"},
        {QMessageBox::No, u"&Nein", u"&No"},
    };
    for (const Caption& caption : captions) {
        if (QAbstractButton* button = box.button(caption.button))
            button->setText(uiText(QString::fromUtf16(caption.german), QString::fromUtf16(caption.english)));
    }
}

/// A carriage return parts lines in the texts of the program; a label wants a line feed.
QString withLineFeeds(QString text) {
    return text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
}

} // namespace

QMessageBox::StandardButton ScreenPrompts::message(QWidget* parent, const Message& message) {
    const OrdinaryCursor cursor;
    const QString title = message.title.isEmpty() ? ProductName() : message.title;
    QMessageBox box(message.icon, title, withLineFeeds(message.text), message.buttons, parent);
    box.setObjectName(u"MessageBox"_s);
    box.setTextFormat(Qt::PlainText); // it may show what a user typed
    box.setDefaultButton(message.defaultButton);
    setCaptions(box);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

int ScreenPrompts::exec(QDialog& dialog) {
    const OrdinaryCursor cursor;
    return dialog.exec();
}

std::optional<QString> ScreenPrompts::openFile(QWidget* parent, const FileDialogRequest& request) {
    const OrdinaryCursor cursor;
    const QString path =
        QFileDialog::getOpenFileName(parent, request.title, request.directory, request.filter);
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

std::optional<QString> ScreenPrompts::saveFile(QWidget* parent, const FileDialogRequest& request) {
    const OrdinaryCursor cursor;
    const QFileDialog::Options options = request.confirmOverwrite
                                             ? QFileDialog::Options{}
                                             : QFileDialog::Options{QFileDialog::DontConfirmOverwrite};
    const QString path = QFileDialog::getSaveFileName(parent, request.title, request.directory,
                                                      request.filter, nullptr, options);
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

void ScreenPrompts::beep() {
    QApplication::beep();
}

} // namespace lingomat
