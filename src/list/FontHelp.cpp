#include "FontHelp.h"

#include "FormTexts.h"
#include "Globals.h"
#include "ModalFollower.h"
#include "WindowPlacement.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

// Row by row. The blank behind two of the letters goes to the clipboard with them.
const QList<QStringList>& padRows() {
    static const QList<QStringList> rows{
        {u"á"_s, u"à"_s, u"â"_s, u"ã"_s, u"å"_s, u"æ"_s, u"ä"_s, u"é"_s, u"è"_s},
        {u"ê"_s, u"ë"_s, u"ì "_s, u"í"_s, u"î "_s, u"ï"_s, u"ó"_s, u"ò"_s, u"ô"_s},
        {u"õ"_s, u"ø"_s, u"ö"_s, u"ú"_s, u"ù"_s, u"û"_s, u"ü"_s, u"ý"_s, u"ÿ"_s},
        {u"þ"_s, u"ç"_s, u"ð"_s, u"ñ"_s, u"ß"_s, u"Á"_s, u"À"_s, u"Â"_s, u"Ã"_s},
        {u"Å"_s, u"Æ"_s, u"Ä"_s, u"É"_s, u"È"_s, u"Ê"_s, u"Ë"_s, u"Ì"_s, u"Í"_s},
        {u"Î"_s, u"Ï"_s, u"Ò"_s, u"Ó"_s, u"Ô"_s, u"Õ"_s, u"Ø"_s, u"Ö"_s, u"Ù"_s},
        {u"Ú"_s, u"Û"_s, u"Ü"_s, u"Ý"_s, u"Ð"_s, u"Þ"_s, u"Ç"_s, u"Ñ"_s},
        {u"¿"_s, u"¡"_s},
    };
    return rows;
}

constexpr int CloseButton = 9; // its number among the Commands

constexpr FormText texts[] = {
    {"FontHelp", u"Sonderzeichen", u"Special Characters"},
    {"Command9", u"Schließen", u"Close"},
    {"Label2", u"Ausgewähltes Zeichen", u"Selected Character"},
    {"Text2", u"Anleitung", u"Instructions"},
};

QString instructions() {
    return uiText(u"Dieses Fenster ermöglicht es Ihnen, Zeichen in \n"
                  "Text einzufügen, die nicht auf Ihrer Tastatur \n"
                  "vorhanden sind. Drücken Sie auf den Knopf, der \n"
                  "das Zeichen enthält. Das Zeichen wird dann \n"
                  "automatisch in den Zwischenpuffer kopiert. Sie \n"
                  "können das Zeichen in ein beliebiges Feld \n"
                  "einfügen. Zum Einfügen aktivieren Sie das \n"
                  "betreffende Feld und wählen Sie dann die \n"
                  "Tastenkombination  <STRG> V, oder öffnen Sie \n"
                  "über die rechte Maustaste das Popupmenü und \n"
                  "wählen Sie dann 'Einfügen' aus."_s,
                  u"This window enables you to insert characters, that might not be available on your key "
                  "board. Press the button, that displays the character you wish to insert. The characters "
                  "gets then copied automatically into the clip board. You can insert this character in any "
                  "field you like. To do so, activate the respective field and then press <CTRL> V, or open "
                  "the popup menu, by pressing the right mouse button, and select the entry 'Insert'."_s);
}

} // namespace

FontHelp::FontHelp(QWidget* parent) : QDialog(parent), m_follower(new ModalFollower(*this)) {
    setObjectName(u"FontHelp"_s);
    setModal(false);
    buildWidgets();
    SetUserInterfaceProperties();
}

void FontHelp::buildWidgets() {
    auto* pad = new QGridLayout;
    pad->setSpacing(2);
    addCharacters(*pad);

    auto* label = new QLabel(this);
    label->setObjectName(u"Label2"_s);
    m_text1 = new QLineEdit(this);
    m_text1->setObjectName(u"Text1"_s);
    m_text1->setReadOnly(true);
    m_text1->setMaximumWidth(m_text1->fontMetrics().averageCharWidth() * 12);
    label->setBuddy(m_text1);

    auto* help = new QPlainTextEdit(this);
    help->setObjectName(u"Text2"_s);
    help->setReadOnly(true);
    help->setTabChangesFocus(true);
    const QFontMetrics metrics = help->fontMetrics();
    help->setMinimumSize(metrics.averageCharWidth() * 40, metrics.lineSpacing() * 6);

    auto* close = new QPushButton(this);
    close->setObjectName(u"Command9"_s);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* taken = new QHBoxLayout;
    taken->addWidget(label);
    taken->addWidget(m_text1);
    taken->addStretch();
    taken->addWidget(close);

    auto* column = new QVBoxLayout(this);
    column->addLayout(pad);
    column->addLayout(taken);
    column->addWidget(help, 1);
    resize(sizeHint().width(), sizeHint().height() + metrics.lineSpacing() * 3);
}

void FontHelp::addCharacters(QGridLayout& pad) {
    int number = 0;
    for (int row = 0; row < padRows().size(); ++row) {
        const QStringList& characters = padRows()[row];
        for (int column = 0; column < characters.size(); ++column) {
            if (++number == CloseButton)
                ++number;
            auto* button = new QPushButton(characters[column], this);
            button->setObjectName(u"Command%1"_s.arg(number));
            button->setAutoDefault(false); // Return in the field would press the first of them
            button->setMinimumWidth(button->fontMetrics().horizontalAdvance(u"WW"_s) + 8);
            connect(button, &QPushButton::clicked, this, [this, button] { AddToActive(button->text()); });
            pad.addWidget(button, row, column);
        }
    }
}

void FontHelp::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
    auto& help = *findChild<QPlainTextEdit*>(u"Text2"_s);
    help.setPlainText(instructions());
}

void FontHelp::AddToActive(const QString& character) {
    m_text1->setText(character);
    m_text1->selectAll();
    QClipboard& clipboard = *QApplication::clipboard();
    clipboard.clear();
    clipboard.setText(m_text1->selectedText());
    m_text1->setFocus();
}

void FontHelp::AddTo(QLineEdit& field, const QString& character) {
    field.setText(field.text() + character);
    field.setFocus();
}

void FontHelp::showFor(QWidget& asker) {
    QWidget& window = *asker.window();
    if (!isVisible())
        move(placeBeside(window.frameGeometry(), size(), usableScreen(window)));
    m_follower->follow(window);
    m_follower->followModalDialog();
    show();
    raise();
    activateWindow();
}

} // namespace lingomat
