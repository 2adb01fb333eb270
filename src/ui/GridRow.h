#pragma once

#include <QFont>
#include <QPalette>
#include <QPixmap>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lingomat {

/// What makes one cell look different from its column.
struct CellLook {
    QPixmap picture;
    int pictureAlignment = 0;
    std::optional<QFont> font;
    std::optional<int> alignment;
    QPalette::ColorRole background = QPalette::NoRole;
};

/// One row of a grid: its height, its texts, and the few looks that differ. The texts lie in one piece, since
/// a list of 32,767 rows has three quarters of a million cells. Columns behind the last one written are
/// empty.
class GridRow {
public:
    static constexpr int DefaultHeight = -1;

    int height = DefaultHeight;

    [[nodiscard]] QStringView text(int col) const;
    void setText(int col, QStringView text); ///< `text` must not lie in this row
    void clearTexts();
    /// Forgets the columns from `cols` on.
    void truncate(int cols);

    /// The look of a cell, or none.
    [[nodiscard]] const CellLook* look(int col) const;
    [[nodiscard]] CellLook& changeLook(int col);
    void clearPictures();

private:
    using Looks = std::map<int, CellLook>;

    [[nodiscard]] size_t startOf(size_t col) const { return col == 0 ? 0 : m_ends[col - 1]; }

    std::u16string m_texts;
    std::vector<quint32> m_ends; ///< where the text of each column ends
    std::unique_ptr<Looks> m_looks;
};

} // namespace lingomat
