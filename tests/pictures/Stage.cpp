#include "Stage.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int TitleHeight = 24;
const QColor TitleGround(0xc8, 0xd4, 0xe3);
const QColor FrameColour(0x80, 0x88, 0x94);

QPixmap framed(const QPixmap& inside, const QString& title) {
    QPixmap picture(inside.width() + 2, inside.height() + TitleHeight + 1);
    picture.fill(FrameColour);
    QPainter painter(&picture);
    const QRect bar(1, 1, inside.width(), TitleHeight - 1);
    painter.fillRect(bar, TitleGround);
    QFont bold = QApplication::font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(Qt::black);
    painter.drawText(bar, Qt::AlignCenter, title);
    painter.drawPixmap(1, TitleHeight, inside);
    return picture;
}

} // namespace

void Stage::take(QWidget& window, const QString& name) {
    QApplication::processEvents();
    const QPixmap picture = framed(window.grab(), window.windowTitle());
    if (!picture.save(m_folder + u'/' + name + ".png"_L1))
        throw std::runtime_error("the picture " + name.toStdString() + " cannot be written");
}

QMessageBox::StandardButton Stage::message(QWidget*, const Message& message) {
    return message.buttons.testFlag(QMessageBox::Yes) ? QMessageBox::Yes : QMessageBox::Ok;
}

int Stage::exec(QDialog& dialog) {
    dialog.show();
    QApplication::processEvents();
    if (const auto scene = m_scenes.constFind(dialog.objectName()); scene != m_scenes.constEnd())
        (*scene)(dialog);
    if (dialog.isVisible())
        dialog.reject();
    return dialog.result();
}

std::optional<QString> Stage::openFile(QWidget*, const FileDialogRequest&) {
    return m_file;
}

std::optional<QString> Stage::saveFile(QWidget*, const FileDialogRequest&) {
    return m_file;
}

} // namespace lingomat
