#pragma once

#include <QWidget>

class QFrame;
class QLabel;
class QProgressBar;
class QTimer;

namespace lingomat {

/// The interface language that this program was built for: "En", or "De" with LINGOMAT_GERMAN.
[[nodiscard]] QString builtInterfaceLanguage();

/// The window shown while the program loads, and the object that sets the program's globals: it has to be
/// made before anything that reads them.
///
/// Once it is on the screen its timer fires, one time, and asks for the main window.
class frmSplash final : public QWidget {
    Q_OBJECT

public:
    explicit frmSplash(const QString& language, QWidget* parent = nullptr);

    /// Moves the bar (0 to 100) and paints the status frame at once.
    void setBar(int value);
    /// The line below the bar; painted with the next move of the bar or at refresh().
    void setStatus(const QString& text);
    /// Paints the status frame at once, without taking input.
    void refresh();

Q_SIGNALS:
    void mainWindowRequested();

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildWidgets();
    void SetUserInterfaceProperties();
    void Timer1_Timer();

    QLabel* m_label2 = nullptr;
    QFrame* m_statusFrame = nullptr;
    QProgressBar* m_bar = nullptr;
    QLabel* m_status = nullptr;
    QTimer* m_timer = nullptr;
};

} // namespace lingomat
