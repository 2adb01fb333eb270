#pragma once

#include <QDialog>
#include <QStringList>

class QComboBox;

namespace lingomat {

class Prompts;

/// Asks for the name of a lesson: one of those there are, or a new one. Accepted by "OK" alone.
class frmSelectAuswahl final : public QDialog {
    Q_OBJECT

public:
    frmSelectAuswahl(Prompts& prompts, const QStringList& lessons, QWidget* parent = nullptr);

    [[nodiscard]] QString name() const;
    void SetUserInterfaceProperties();

private:
    void buildWidgets(Prompts& prompts);

    QComboBox* m_combo1 = nullptr;
};

} // namespace lingomat
