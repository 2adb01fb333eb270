#pragma once

#include <QPixmap>
#include <QString>

namespace lingomat {

class FlexGrid;

/// The picture in the margin (column 0) of a grid that marks one of its rows. Which row that is, its user
/// keeps. The grid's current cell and selection stay where they are.
class RowMark {
public:
    /// `path` of a picture; one that cannot be read is replaced by a drawn one.
    RowMark(FlexGrid& grid, QString path);

    void put(int row);
    void take(int row); ///< a row that has gone since took its mark along: nothing happens

private:
    void setPicture(int row, const QPixmap& picture);
    [[nodiscard]] const QPixmap& picture();

    FlexGrid& m_grid;
    QString m_path;
    QPixmap m_picture;
};

} // namespace lingomat
