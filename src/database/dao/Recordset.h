#pragma once

#include "Value.h"

#include <QString>

#include <memory>
#include <optional>

namespace dao {

class RecordsetPrivate;

/// A cursor over the rows of one statement.
///
/// Over one table it is a dynaset: the keys are taken when it is opened, the rows are read live. Rows that
/// another recordset adds appear after Requery; a row that another one deleted raises 3167 when it is read.
/// Over a join it is a read-only copy of the result, and DISTINCT orders it by its columns.
///
/// A default-constructed recordset raises 91, one that was closed 3420. Movable, not copyable.
class Recordset {
public:
    Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    void Close();
    [[nodiscard]] bool isOpen() const;
    /// Takes the keys anew and goes to the first row.
    void Requery();

    [[nodiscard]] bool BOF() const;
    [[nodiscard]] bool EOF_() const;            ///< `EOF`, which the C library has taken
    [[nodiscard]] bool NoMatch() const;         ///< whether the last Find failed
    [[nodiscard]] int RecordCount() const;      ///< number of keys held
    [[nodiscard]] int AbsolutePosition() const; ///< from 0; -1 without a current row

    void MoveFirst();
    void MoveLast();
    void MoveNext();     ///< 3021 when already behind the last row
    void MovePrevious(); ///< 3021 when already before the first row

    /// Look for a row that meets the criterion; the current row stays where it is when there is none, and
    /// NoMatch tells. FindNext starts behind the current row, FindPrevious before it.
    /// Errors: 3077 syntax, 3070 unknown field, 3079 ambiguous field, 93 invalid pattern, 3421 types.
    void FindFirst(const QString& criterion);
    void FindNext(const QString& criterion);
    void FindLast(const QString& criterion);
    void FindPrevious(const QString& criterion);

    [[nodiscard]] int fieldCount() const;
    [[nodiscard]] QString fieldName(int position) const;
    /// A field of the current row, by position from 0 or by name (`name` where unique, else `table.name`).
    /// While a row is being edited or added, what was set so far. Errors: 3021, 3167, 3265.
    [[nodiscard]] Value field(int position) const;
    [[nodiscard]] Value field(const QString& name) const;

    void AddNew(); ///< starts a new row with the defaults; its number is taken once it is read
    void Edit();   ///< starts a change of the current row
    /// Sets a field of the row in work. Errors: 3020 without AddNew or Edit, 3163 too long, 3315 empty text
    /// not allowed, 3421 wrong type, 6 number out of range, 3027 read-only.
    void setField(int position, const Value& value);
    void setField(const QString& name, const Value& value);
    /// Writes the row in work, durably, in one step. After AddNew the current row is what it was before.
    void Update();
    void CancelUpdate();
    /// Deletes the current row. The position becomes a hole: reading raises 3167, moving and finding go on.
    void Delete();

    /// Names a row for as long as the recordset is open.
    using BookmarkType = qint64;
    [[nodiscard]] BookmarkType Bookmark() const;
    void setBookmark(BookmarkType bookmark);         ///< 3159 for a row that is not among the keys
    [[nodiscard]] BookmarkType LastModified() const; ///< the row that the last Update wrote

private:
    friend class Database;
    explicit Recordset(std::unique_ptr<RecordsetPrivate> d);
    [[nodiscard]] RecordsetPrivate& d() const;
    void find(const QString& criterion, std::size_t first, std::size_t last, bool forward);
    [[nodiscard]] int checkedColumn(int position) const;
    [[nodiscard]] int column(const QString& name) const;

    std::unique_ptr<RecordsetPrivate> m_d;
    bool m_closed = false;
};

} // namespace dao
