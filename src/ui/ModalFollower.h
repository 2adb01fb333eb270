#pragma once

#include <QObject>

class QWidget;

namespace lingomat {

/// Keeps a modeless window usable while modal dialogs are up, by hanging it on to the dialog that would lock
/// it out. Belongs to the window.
class ModalFollower final : public QObject {
    Q_OBJECT

public:
    explicit ModalFollower(QWidget& window);

    /// Hangs the window on to another, in front of which it stays from then on.
    void follow(const QWidget& other);
    /// Hangs it on to the modal dialog that is up, if any.
    void followModalDialog();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_window;
};

} // namespace lingomat
