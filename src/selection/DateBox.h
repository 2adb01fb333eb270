#pragma once

#include <QLineEdit>

namespace lingomat {

/// A box for two or four digits that is full nearly always, and is corrected while it is typed in.
///
/// A digit therefore replaces the one behind the cursor instead of being refused, and one typed behind a
/// padded number pushes its zero out: "1", "5" gives "01", then "15".
class DateBox final : public QLineEdit {
    Q_OBJECT

public:
    DateBox(const QString& name, int digits, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeRoom();
};

} // namespace lingomat
