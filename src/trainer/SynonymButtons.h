#pragma once

#include <QWidget>

namespace lingomat {

/// Two small arrows that step through the synonyms of an expression: the upper one to the next, the lower
/// one to the previous, as do the keys Up and Down.
class SynonymButtons final : public QWidget {
    Q_OBJECT

public:
    SynonymButtons(const QString& name, QWidget* parent);

Q_SIGNALS:
    void next();
    void previous();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace lingomat
