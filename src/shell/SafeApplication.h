#pragma once

#include <QApplication>

namespace lingomat {

class Prompts;

/// The toolkit's application with a last net: an exception that no trap caught is told to the user instead
/// of ending the program. Every event handler and slot runs below it.
class SafeApplication final : public QApplication {
    Q_OBJECT

public:
    SafeApplication(int& argc, char** argv, Prompts& prompts);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    Prompts& m_prompts;
};

} // namespace lingomat
