#include "Progress.h"

#include "Globals.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr qint64 RefreshInterval = 33; // milliseconds

} // namespace

Progress::Progress(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_bar(new QProgressBar(this)),
      m_status(new QLabel(this)) {
    setObjectName(u"Progress"_s);
    m_bar->setObjectName(u"ProgressBar1"_s);
    m_bar->setAccessibleName(uiText(u"Fortschritt"_s, u"Progress"_s));
    m_bar->setRange(0, 100);
    m_bar->setValue(0);
    m_status->setObjectName(u"txtStatus"_s);
    m_status->setTextFormat(Qt::PlainText);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_status);
    layout->addWidget(m_bar);
    setMinimumWidth(fontMetrics().averageCharWidth() * 56);
}

void Progress::setMinimum(int minimum) {
    const int before = value();
    m_bar->setMinimum(minimum);
    setValue(before); // a bar whose range moves away from its value forgets it
}

void Progress::setMaximum(int maximum) {
    const int before = value();
    m_bar->setMaximum(maximum);
    setValue(before);
}

void Progress::setValue(int value) {
    m_bar->setUpdatesEnabled(false); // it would paint itself at every change instead of at the next refresh
    m_bar->setValue(std::clamp(value, minimum(), maximum()));
    m_bar->setUpdatesEnabled(true);
    refresh();
}

void Progress::setStatus(const QString& text) {
    m_status->setText(text);
    refresh();
}

int Progress::minimum() const {
    return m_bar->minimum();
}

int Progress::maximum() const {
    return m_bar->maximum();
}

int Progress::value() const {
    return m_bar->value();
}

QString Progress::status() const {
    return m_status->text();
}

void Progress::showNow() {
    show();
    refresh(true);
}

void Progress::refresh(bool force) {
    if (!isVisible())
        return;
    if (!force && m_sinceRefresh.isValid() && m_sinceRefresh.elapsed() < RefreshInterval)
        return;
    m_sinceRefresh.start(); // already now: what runs below may report progress of its own
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sinceRefresh.start();
}

void Progress::closeEvent(QCloseEvent* event) {
    event->ignore();
}

void Progress::keyPressEvent(QKeyEvent* event) {
    event->accept(); // Escape would close it
}

} // namespace lingomat
