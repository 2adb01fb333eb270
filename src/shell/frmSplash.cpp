#include "frmSplash.h"

#include "Globals.h"
#include "Resources.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace lingomat {

namespace {

#ifdef LINGOMAT_GERMAN
constexpr auto InterfaceLanguage = "De"_L1;
#else
constexpr auto InterfaceLanguage = "En"_L1;
#endif

/// How long the timer waits for the window to be painted; some displays never tell.
constexpr auto LongestWaitForPaint = 100ms;
constexpr int LogoSize = 64;

} // namespace

QString builtInterfaceLanguage() {
    return InterfaceLanguage;
}

frmSplash::frmSplash(const QString& language, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setInterfaceLanguage(language);

    setObjectName("frmSplash"_L1);
    buildWidgets();
    m_label2->setText(ProductName() + " V"_L1 + VersionText());
    SetUserInterfaceProperties();
    m_bar->setRange(0, 100);
    m_bar->setValue(1);

    m_timer = new QTimer(this);
    m_timer->setObjectName("Timer1"_L1);
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &frmSplash::Timer1_Timer);
}

void frmSplash::buildWidgets() {
    auto* logo = new QLabel(this);
    logo->setObjectName("Image1"_L1);
    logo->setPixmap(applicationIcon().pixmap(QSize(LogoSize, LogoSize), devicePixelRatioF()));

    m_label2 = new QLabel(this);
    m_label2->setObjectName("Label2"_L1);
    QFont large = m_label2->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    m_label2->setFont(large);

    m_statusFrame = new QFrame(this);
    m_statusFrame->setObjectName("fraStatus"_L1);
    m_bar = new QProgressBar(m_statusFrame);
    m_bar->setObjectName("ProgressBar1"_L1);
    m_bar->setTextVisible(false);
    m_bar->setMinimumWidth(m_bar->fontMetrics().averageCharWidth() * 48);
    m_status = new QLabel(m_statusFrame);
    m_status->setObjectName("labStatus"_L1);

    auto* status = new QVBoxLayout(m_statusFrame);
    status->setContentsMargins(0, 0, 0, 0);
    status->addWidget(m_bar);
    status->addWidget(m_status);

    auto* title = new QHBoxLayout;
    title->addWidget(logo);
    title->addWidget(m_label2, 1);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(24, 24, 24, 24);
    all->setSpacing(16);
    all->addLayout(title);
    all->addWidget(m_statusFrame);
}

void frmSplash::SetUserInterfaceProperties() {
    setWindowTitle(ProductName());
    m_status->setText(uiText(u"Programm wird geladen ..."_s, u"Loading program ..."_s));
    m_bar->setAccessibleName(uiText(u"Ladefortschritt"_s, u"Loading progress"_s));
}

void frmSplash::setBar(int value) {
    m_bar->setValue(value);
    refresh();
}

void frmSplash::setStatus(const QString& text) {
    m_status->setText(text);
}

void frmSplash::refresh() {
    m_statusFrame->repaint();
    // What was painted reaches the screen with the events of the display.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmSplash::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    adjustSize();
    if (const QScreen* display = QGuiApplication::primaryScreen())
        move(display->availableGeometry().center() - rect().center());
    m_timer->start(LongestWaitForPaint);
}

void frmSplash::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (m_timer->isActive())
        m_timer->start(0ms);
}

void frmSplash::closeEvent(QCloseEvent* event) {
    // Loading cannot be stopped half-way.
    event->ignore();
}

void frmSplash::Timer1_Timer() {
    setBar(3);
    Q_EMIT mainWindowRequested();
    hide();
}

} // namespace lingomat
