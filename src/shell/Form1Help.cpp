#include "Form1.h"

#include "ErrorTrap.h"
#include "Help.h"
#include "WebPage.h"
#include "frmAbout.h"

namespace lingomat {

void Form1::mnuHelpInhalt_Click() {
    m_forms.help.showContents();
}

void Form1::mnuHelpSuchen_Click() {
    m_forms.help.showSearch();
}

void Form1::mnuHelpInfo_Click() {
    trapped(m_context.prompts, [this] {
        frmAbout about(m_context, m_surroundings.desktop, this);
        m_context.prompts.exec(about);
    });
}

void Form1::mnWeb_Click() {
    trapped(m_context.prompts, [this] {
        LaunchWebBrowser(m_surroundings.desktop, m_context.prompts, this, webPage(m_context.settings));
    });
}

} // namespace lingomat
