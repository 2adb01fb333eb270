#pragma once

#include <QPixmap>
#include <QString>
#include <QTableView>

#include <memory>

namespace lingomat {

/// A grid of texts that is driven through a current cell.
///
/// Rows and columns count from 0, fixed ones included; row 0 of a grid with FixedRows 1 is the header, and
/// column 0 of one with FixedCols 1 the margin that holds the mark. Setting Row and Col from code moves
/// nothing on the screen but the cursor, raises no signal and costs nothing; only the user's keys and mouse
/// raise EnterCell, LeaveCell, SelChange and Scroll. Changes of any number of cells or rows reach the view
/// in one go when control returns to the event loop, or at flush().
///
/// Reading or writing a cell that does not exist raises 9 (Subscript out of range).
class FlexGrid final : public QTableView {
    Q_OBJECT

public:
    explicit FlexGrid(QWidget* parent = nullptr);
    ~FlexGrid() override;
    Q_DISABLE_COPY_MOVE(FlexGrid)

    // Size.
    [[nodiscard]] int Rows() const;
    void setRows(int rows); ///< new rows are empty, of the default height
    [[nodiscard]] int Cols() const;
    void setCols(int cols);
    [[nodiscard]] int FixedRows() const; ///< 0 or 1
    void setFixedRows(int rows);
    [[nodiscard]] int FixedCols() const; ///< 0 or 1
    void setFixedCols(int cols);

    // The current cell and the selection that starts from it.
    [[nodiscard]] int Row() const;
    void setRow(int row); ///< takes RowSel along
    [[nodiscard]] int Col() const;
    void setCol(int col); ///< takes ColSel along
    [[nodiscard]] int RowSel() const;
    void setRowSel(int row);
    [[nodiscard]] int ColSel() const;
    void setColSel(int col);

    // Contents.
    [[nodiscard]] QString Text() const;
    void setText(const QString& text); ///< of the current cell, or of the whole selection: see FillStyle
    enum class Fill { Single, Repeat };
    [[nodiscard]] Fill FillStyle() const; ///< what a new text goes into; Single: the current cell only
    void setFillStyle(Fill style);
    [[nodiscard]] QString TextMatrix(int row, int col) const; ///< any cell, without moving
    void setTextMatrix(int row, int col, const QString& text);
    /// Appends a row; the text's tabs part its cells, from column 0 on.
    void AddItem(const QString& text);
    void RemoveItem(int row); ///< also a current row behind it moves up
    void Clear();             ///< empties every cell, headers too, and takes away pictures; sizes stay
    [[nodiscard]] QPixmap CellPicture() const;
    void setCellPicture(const QPixmap& picture); ///< of the current cell; a null pixmap takes it away
    [[nodiscard]] int CellPictureAlignment() const;
    void setCellPictureAlignment(int alignment); ///< 4 centres

    // Geometry, in pixels. A width or height of 0 hides the column or row, one below 0 is the default. Widths
    // and heights grow and shrink with the font.
    [[nodiscard]] int DefaultColWidth() const;
    [[nodiscard]] int ColWidth(int col) const;
    void setColWidth(int col, int width);
    [[nodiscard]] int DefaultRowHeight() const;
    [[nodiscard]] int RowHeight(int row) const;
    void setRowHeight(int row, int height);
    [[nodiscard]] int ColAlignment(int col) const;
    void setColAlignment(int col, int alignment); ///< 0 or 1 left, 4 centre, 7 right
    [[nodiscard]] int TopRow() const;             ///< first data row in view
    void setTopRow(int row);                      ///< as far down as the last rows still fill the view
    void showCell();                              ///< scrolls the current cell into view
    // Place of the current cell within this widget.
    [[nodiscard]] int CellLeft() const;
    [[nodiscard]] int CellTop() const;
    [[nodiscard]] int CellWidth() const;
    [[nodiscard]] int CellHeight() const;

    // Look of the current cell.
    void setCellFont(const QFont& font);
    [[nodiscard]] QFont CellFont() const;
    void setCellBackgroundRole(QPalette::ColorRole role);
    void setCellAlignment(int alignment); ///< overrides that of the column

    /// Sorts the data rows by the current column, ascending, without regard to case, by the collation of the
    /// interface language; equal rows keep their order.
    void Sort();

    /// Whether the user may drag the borders of columns (of rows).
    [[nodiscard]] bool AllowUserResizing() const;
    void setAllowUserResizing(bool allowed);
    void setAllowUserResizingRows(bool allowed);

    [[nodiscard]] int MouseCol() const; ///< column under the mouse; the last one where it is right of all
    [[nodiscard]] int MouseRow() const; ///< row under the mouse; the last one where it is below all

    /// Whether input methods may compose in a cell. Their events come to this widget, for who watches it.
    void setTakesInputMethods(bool takes);

    /// Brings the view in line with the contents now.
    void flush();

    void keyboardSearch(const QString& search) override; ///< does nothing: a typed letter moves no cursor

Q_SIGNALS:
    // The base class's pressed() and clicked() come for cells, pressed() for the margin as well.

    void EnterCell();            ///< the user has moved to another cell, which is the current one now
    void LeaveCell();            ///< the user is about to leave the current cell
    void SelChange();            ///< the user has changed the current cell or the selection
    void Scroll();               ///< the view is moving under the user's hand
    void ScrollEnd();            ///< it has come to rest: the mouse button is up again, where it was down
    void mouseMoved();           ///< MouseCol and MouseRow tell where
    void headerClicked(int col); ///< Col has moved there already

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    class Private;
    std::unique_ptr<Private> m_d;
};

} // namespace lingomat
