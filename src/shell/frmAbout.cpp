#include "frmAbout.h"

#include "ErrorTrap.h"
#include "FormTexts.h"
#include "Globals.h"
#include "Resources.h"
#include "SystemInformation.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int LogoSize = 64;

constexpr FormText texts[] = {
    {"cmdOK", u"OK", u"OK"},
    {"cmdSysInfo", u"&Systeminfo...", u"&System Info..."},
};

QLabel* makeLine(QWidget* parent, const char* name, qreal size, bool bold) {
    auto* line = new QLabel(parent);
    line->setObjectName(QString::fromUtf8(name));
    line->setTextFormat(Qt::PlainText);
    QFont font = line->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(bold);
    line->setFont(font);
    return line;
}

} // namespace

frmAbout::frmAbout(FormContext& context, Desktop desktop, QWidget* parent)
    : QDialog(parent), m_context(context), m_desktop(std::move(desktop)) {
    setObjectName(u"frmAbout"_s);
    buildWidgets();
    SetUserInterfaceProperties();
}

void frmAbout::buildWidgets() {
    auto* logo = new QLabel(this);
    logo->setObjectName(u"picIcon"_s);
    logo->setPixmap(applicationIcon().pixmap(QSize(LogoSize, LogoSize), devicePixelRatioF()));
    m_lblTitle = makeLine(this, "lblTitle", 1.8, true);
    m_label5 = makeLine(this, "Label5", 1.2, false);
    m_lblVersion = makeLine(this, "lblVersion", 1.0, false);

    auto* ok = new QPushButton(this);
    ok->setObjectName(u"cmdOK"_s);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* info = new QPushButton(this);
    info->setObjectName(u"cmdSysInfo"_s);
    info->setAutoDefault(false);
    connect(info, &QPushButton::clicked, this, [this] { StartSysInfo(); });

    auto* lines = new QVBoxLayout;
    lines->addWidget(m_lblTitle);
    lines->addWidget(m_label5);
    lines->addWidget(m_lblVersion);
    auto* top = new QHBoxLayout;
    top->setSpacing(20);
    top->addWidget(logo, 0, Qt::AlignTop);
    top->addLayout(lines, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(info);
    buttons->addStretch();
    buttons->addWidget(ok);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(24, 24, 24, 16);
    all->setSpacing(20);
    all->addLayout(top);
    all->addStretch(1);
    all->addLayout(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 52);
    ok->setFocus();
}

void frmAbout::SetUserInterfaceProperties() {
    setWindowTitle(ProductName() + "-Info"_L1);
    m_lblTitle->setText(ProductName());
    m_label5->setText(u'V' + VersionText());
    m_lblVersion->setText("Version "_L1 + QStringLiteral(LINGOMAT_VERSION));
    applyTexts(*this, texts);
}

void frmAbout::StartSysInfo() {
    trapped(m_context.prompts, [this] {
        const QString program = findSystemInformation(m_context.settings, m_desktop);
        if (!program.isEmpty() && m_desktop.startProgram(program, {}))
            return;
        m_context.prompts.message(
            this, {.title = {}, .text = u"System-Informationen sind augenblicklich nicht verfügbar."_s});
    });
}

} // namespace lingomat
