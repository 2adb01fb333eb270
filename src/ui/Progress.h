#pragma once

#include <QDialog>
#include <QElapsedTimer>

class QLabel;
class QProgressBar;

namespace lingomat {

/// The window that long work shows: a title, the bar `ProgressBar1`, the text `txtStatus`. It has no logic
/// of its own and takes no input. Values are kept at once; the display follows a few dozen times a second.
class Progress final : public QDialog {
    Q_OBJECT

public:
    explicit Progress(QWidget* parent = nullptr);

    void setMinimum(int minimum);
    void setMaximum(int maximum);
    void setValue(int value); ///< clamped to the range
    void setStatus(const QString& text);
    [[nodiscard]] int minimum() const;
    [[nodiscard]] int maximum() const;
    [[nodiscard]] int value() const;
    [[nodiscard]] QString status() const;

    /// Shows the window and paints it at once.
    void showNow();
    /// Lets the display catch up without taking input. `force` does so even when it did a moment ago.
    void refresh(bool force = false);

protected:
    void closeEvent(QCloseEvent* event) override; ///< ignored: only the program closes it
    void keyPressEvent(QKeyEvent* event) override;

private:
    QProgressBar* m_bar;
    QLabel* m_status;
    QElapsedTimer m_sinceRefresh;
};

} // namespace lingomat
