#include "CellOverlay.h"

#include "ExpressionText.h"
#include "FlexGrid.h"
#include "LengthLimit.h"
#include "ValueLists.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QString onOneLine(QString text) {
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            character = u' ';
    }
    return text;
}

} // namespace

CellOverlay::CellOverlay(FlexGrid& grid, ValueLists& values, Prompts& prompts, QWidget& parent)
    : QObject(&parent), m_grid(grid), m_values(values), m_prompts(prompts) {
    m_wortartBox = newBox(u"WortartBox"_s, u"Wortart"_s, WortartSize, parent);
    m_quelleBox = newBox(u"QuelleBox"_s, u"Quelle"_s, QuelleSize, parent);
    m_txtEdit = new QLineEdit(&parent);
    m_txtEdit->setObjectName(u"txtEdit"_s);
    static_assert(int{BeispielsatzSize} == int{ZusatzinfoSize});
    limitLength(*m_txtEdit, BeispielsatzSize, prompts);
    watch(*m_txtEdit);

    grid.installEventFilter(this);
    for (QScrollBar* bar : {grid.horizontalScrollBar(), grid.verticalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, &CellOverlay::place);
}

QComboBox* CellOverlay::newBox(const QString& name, const QString& kind, int size, QWidget& parent) {
    auto* box = new QComboBox(&parent);
    box->setObjectName(name);
    box->setEditable(true);
    box->setCompleter(nullptr); // what is typed stays as it is typed
    box->setFrame(false);
    box->setAutoFillBackground(true); // nothing of the cell shows through
    box->setBackgroundRole(QPalette::Base);
    box->setMinimumContentsLength(1);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_values.attach(*box, kind);
    limitLength(*box, size, m_prompts);
    watch(*box);
    watch(*box->lineEdit());
    return box;
}

void CellOverlay::watch(QWidget& control) {
    control.installEventFilter(this);
    if (!qobject_cast<QComboBox*>(control.parentWidget()))
        control.hide();
}

QWidget* CellOverlay::control(CellEditor editor) const {
    switch (editor) {
    case CellEditor::WortartBox: return m_wortartBox;
    case CellEditor::QuelleBox: return m_quelleBox;
    case CellEditor::txtEdit: return m_txtEdit;
    default: return nullptr;
    }
}

QLineEdit& CellOverlay::field() const {
    const auto* box = qobject_cast<QComboBox*>(control(m_open));
    return box ? *box->lineEdit() : *m_txtEdit;
}

QString CellOverlay::text() const {
    const QString text = field().text();
    return text == m_cell ? text : onOneLine(text);
}

void CellOverlay::open(CellEditor editor, const QString& cell, const QString& typed) {
    hide();
    m_open = editor;
    m_cell = cell;
    m_grid.showCell();
    place();
    field().setText(cell + typed);
    QWidget& shown = *control(editor);
    shown.setFont(m_grid.font());
    shown.show();
    shown.raise();
    shown.setFocus();
    field().end(false); // a field that is given the focus may select its text
}

void CellOverlay::hide() {
    QWidget* shown = control(std::exchange(m_open, CellEditor::None));
    if (!shown)
        return;
    const bool hadFocus = shown->hasFocus();
    if (hadFocus)
        m_grid.setFocus(); // before the toolkit picks a neighbour
    shown->hide();
    if (hadFocus)
        m_grid.setFocus(); // which it does all the same in a window that is not active
}

void CellOverlay::clear() {
    for (QComboBox* box : {m_wortartBox, m_quelleBox})
        box->setCurrentIndex(-1);
    m_txtEdit->clear();
}

void CellOverlay::place() {
    QWidget* shown = control(m_open);
    if (!shown)
        return;
    const QRect cell(m_grid.CellLeft(), m_grid.CellTop(), m_grid.CellWidth(), m_grid.CellHeight());
    const QRect inView = cell.intersected(m_grid.viewport()->geometry());
    shown->setGeometry(inView.translated(m_grid.pos()));
}

bool CellOverlay::keyDown(const QKeyEvent& event) const {
    return onKey && onKey(event.key(), event.modifiers());
}

bool CellOverlay::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &m_grid) {
        if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
            QMetaObject::invokeMethod(this, &CellOverlay::place, Qt::QueuedConnection);
        return false;
    }
    switch (event->type()) {
    case QEvent::KeyPress: return keyDown(*static_cast<QKeyEvent*>(event));
    // The wheel moves the grid; in a box it would choose other values unseen.
    case QEvent::Wheel: QCoreApplication::sendEvent(m_grid.viewport(), event); return true;
    default: return false;
    }
}

} // namespace lingomat
