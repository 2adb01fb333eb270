#include "Bedeutung.h"

#include "FlexGrid.h"
#include "FormTexts.h"
#include "Globals.h"

#include <QBoxLayout>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

enum Column { FirstColumn, SecondColumn, ValueColumn, ColumnCount };

// In characters and lines of the form's font.
constexpr int StartWidth = 70;
constexpr int StartHeight = 14;

constexpr FormText texts[] = {
    {"Bedeutung", u"Mögliche Bedeutung", u"Possible Meanings"},
    {"Label1", u"Möglicherweise verwechselt mit:", u"Possibly confused with:"},
    {"OK", u"OK", u"OK"},
};

} // namespace

Bedeutung::Bedeutung(const QString& heading0, const QString& heading1, QWidget* parent) : QDialog(parent) {
    setObjectName(u"Bedeutung"_s);
    buildWidgets();
    m_grid->setTextMatrix(0, FirstColumn, heading0);
    m_grid->setTextMatrix(0, SecondColumn, heading1);
    SetUserInterfaceProperties();
}

void Bedeutung::buildWidgets() {
    auto* label = new QLabel(this);
    label->setObjectName(u"Label1"_s);
    m_grid = new FlexGrid(this);
    m_grid->setObjectName(u"MSFlexGrid1"_s);
    m_grid->setRows(1);
    m_grid->setCols(ColumnCount);
    m_grid->setFixedRows(1);
    m_grid->setFixedCols(0);
    label->setBuddy(m_grid);

    m_focus = new QLineEdit(this);
    m_focus->setObjectName(u"Text1"_s);
    m_focus->setReadOnly(true);
    m_focus->setFrame(false);
    m_focus->setFixedSize(1, 1); // it is there for the focus alone

    m_ok = new QPushButton(this);
    m_ok->setObjectName(u"OK"_s);
    m_ok->setDefault(true);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    for (QWidget* const control :
         {static_cast<QWidget*>(m_grid), static_cast<QWidget*>(m_focus), static_cast<QWidget*>(m_ok)})
        control->installEventFilter(this);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_focus);
    buttons->addStretch();
    buttons->addWidget(m_ok);
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(m_grid, 1);
    column->addLayout(buttons);
    resize(fontMetrics().averageCharWidth() * StartWidth, fontMetrics().lineSpacing() * StartHeight);
}

void Bedeutung::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
    m_grid->setAccessibleName(windowTitle());
    m_focus->setAccessibleName(windowTitle());
}

void Bedeutung::ExtendRow(qint16 row) {
    if (row >= m_grid->Rows())
        m_grid->setRows(m_grid->Rows() + 1);
}

bool Bedeutung::event(QEvent* event) {
    const bool isHandled = QDialog::event(event);
    if (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate)
        Form_Activate();
    return isHandled;
}

void Bedeutung::Form_Activate() {
    fitColumns();
    m_focus->setFocus();
    if (m_grid->Rows() < 2)
        return;
    m_grid->setRow(1);
    for (const Column column : {FirstColumn, SecondColumn}) {
        m_grid->setCol(column);
        QFont bold = m_grid->font();
        bold.setBold(true);
        m_grid->setCellFont(bold);
    }
    m_grid->setCol(ValueColumn);
}

/// Enter and Escape close the window wherever the focus is.
bool Bedeutung::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape: accept(); return true;
    default: return QDialog::eventFilter(watched, event);
    }
}

void Bedeutung::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    fitColumns();
}

void Bedeutung::fitColumns() {
    const int width = m_grid->viewport()->width();
    m_grid->setColWidth(FirstColumn, width / 2);
    m_grid->setColWidth(SecondColumn, width - width / 2);
    m_grid->setColWidth(ValueColumn, 0);
}

} // namespace lingomat
