#include "SafeApplication.h"

#include "ErrorTrap.h"

namespace lingomat {

SafeApplication::SafeApplication(int& argc, char** argv, Prompts& prompts)
    : QApplication(argc, argv), m_prompts(prompts) {}

bool SafeApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        reportCurrentException(m_prompts);
        return true;
    }
}

} // namespace lingomat
