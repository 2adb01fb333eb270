#pragma once

#include "Desktop.h"
#include "FormContext.h"

#include <QDialog>

class QLabel;

namespace lingomat {

/// The about box: name and version of the program, and the way to what the machine is made of.
class frmAbout final : public QDialog {
    Q_OBJECT

public:
    frmAbout(FormContext& context, Desktop desktop, QWidget* parent = nullptr);

    /// Starts the tool that shows what the machine is made of; says so where there is none.
    void StartSysInfo();

    void SetUserInterfaceProperties();

private:
    void buildWidgets();

    FormContext& m_context;
    Desktop m_desktop;
    QLabel* m_lblTitle = nullptr;
    QLabel* m_label5 = nullptr;
    QLabel* m_lblVersion = nullptr;
};

} // namespace lingomat
