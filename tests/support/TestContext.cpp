#include "TestContext.h"

#include "ErrorTrap.h"
#include "Globals.h"

using namespace Qt::StringLiterals;

namespace lingomat {

InterfaceLanguage::InterfaceLanguage(const QString& language) : m_before(UILanguage) {
    setInterfaceLanguage(language);
    LastErrorText.clear();
}

InterfaceLanguage::~InterfaceLanguage() {
    setInterfaceLanguage(m_before);
}

TestContext::TestContext(const QString& interfaceLanguage)
    : language(interfaceLanguage),
      state([this](const QString& description) { reportError(prompts, description); }),
      settings(folder.filePath(u"settings"_s)),
      values(prompts),
      forms{state, prompts, settings, values, columns, progress, random, [this] { return today; }} {}

} // namespace lingomat
