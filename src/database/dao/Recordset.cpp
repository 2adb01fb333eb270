#include "Recordset.h"

#include "Dynaset.h"
#include "EngineError.h"
#include "Snapshot.h"

using namespace Qt::StringLiterals;

namespace dao {

namespace {

[[noreturn]] void readOnly() {
    throw Error(ErrorNumber::ReadOnly, u"Cannot update. Database or object is read-only."_s);
}

[[noreturn]] void noCurrentRecord() {
    throw Error(ErrorNumber::NoCurrentRecord, u"No current record."_s);
}

} // namespace

using Place = RecordsetPrivate::Place;

void RecordsetPrivate::requireRow() const {
    if (place == Place::Hole)
        throw Error(ErrorNumber::RecordDeleted, u"Record is deleted."_s);
    if (place != Place::Row)
        noCurrentRecord();
}

void RecordsetPrivate::addNew() {
    readOnly();
}
void RecordsetPrivate::edit() {
    readOnly();
}
void RecordsetPrivate::setValue(int /*column*/, const Value& /*value*/) {
    readOnly();
}
void RecordsetPrivate::update() {
    readOnly();
}
void RecordsetPrivate::cancelUpdate() {
    readOnly();
}
void RecordsetPrivate::deleteRow() {
    readOnly();
}
qint64 RecordsetPrivate::lastModified() const {
    noCurrentRecord();
}

std::unique_ptr<RecordsetPrivate> openCursor(const std::shared_ptr<Connection>& connection,
                                             const QString& statement) {
    auto [plan, literals] = connection->selectPlan(statement);
    std::unique_ptr<RecordsetPrivate> cursor;
    if (plan->isDynaset)
        cursor = std::make_unique<Dynaset>(connection, std::move(plan), std::move(literals));
    else
        cursor = std::make_unique<Snapshot>(connection, std::move(plan), std::move(literals));
    cursor->goToFirst();
    return cursor;
}

Recordset::Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;
Recordset::Recordset(std::unique_ptr<RecordsetPrivate> d) : m_d(std::move(d)) {}

RecordsetPrivate& Recordset::d() const {
    if (m_d == nullptr) {
        if (m_closed)
            throw Error(ErrorNumber::ObjectInvalid, u"Object invalid or no longer set."_s);
        throw Error(ErrorNumber::ObjectNotSet, u"Object variable or With block variable not set"_s);
    }
    m_d->connection().requireOpen();
    return *m_d;
}

void Recordset::Close() {
    (void)d();
    m_d.reset();
    m_closed = true;
}

bool Recordset::isOpen() const {
    return m_d != nullptr && m_d->connection().isOpen();
}

void Recordset::Requery() {
    d().leaveRow();
    m_d->requery();
    m_d->goToFirst();
}

bool Recordset::BOF() const {
    return d().place == Place::Before || (m_d->place != Place::Hole && m_d->count() == 0);
}

bool Recordset::EOF_() const {
    return d().place == Place::Behind || (m_d->place != Place::Hole && m_d->count() == 0);
}

bool Recordset::NoMatch() const {
    return d().noMatch;
}

int Recordset::RecordCount() const {
    return static_cast<int>(d().count());
}

int Recordset::AbsolutePosition() const {
    return d().place == Place::Row ? static_cast<int>(m_d->position) : -1;
}

void Recordset::MoveFirst() {
    d().leaveRow();
    if (m_d->count() == 0)
        noCurrentRecord();
    m_d->goTo(0);
}

void Recordset::MoveLast() {
    d().leaveRow();
    if (m_d->count() == 0)
        noCurrentRecord();
    m_d->goTo(m_d->count() - 1);
}

void Recordset::MoveNext() {
    d().leaveRow();
    if (EOF_())
        noCurrentRecord();
    std::size_t next = 0;
    if (m_d->place == Place::Row)
        next = m_d->position + 1;
    else if (m_d->place == Place::Hole)
        next = m_d->position;
    if (next < m_d->count())
        m_d->goTo(next);
    else
        m_d->place = Place::Behind;
}

void Recordset::MovePrevious() {
    d().leaveRow();
    if (BOF())
        noCurrentRecord();
    const std::size_t end = m_d->place == Place::Behind ? m_d->count() : m_d->position;
    if (end > 0)
        m_d->goTo(end - 1);
    else
        m_d->place = Place::Before;
}

void Recordset::find(const QString& criterion, std::size_t first, std::size_t last, bool forward) {
    d().leaveRow();
    m_d->noMatch = true;
    const auto row = m_d->find(criterion, {first, last, forward});
    m_d->noMatch = !row;
    if (row)
        m_d->goTo(*row);
}

void Recordset::FindFirst(const QString& criterion) {
    find(criterion, 0, d().count(), true);
}

void Recordset::FindLast(const QString& criterion) {
    find(criterion, 0, d().count(), false);
}

void Recordset::FindNext(const QString& criterion) {
    std::size_t first = d().count();
    if (m_d->place == Place::Row)
        first = m_d->position + 1;
    else if (m_d->place == Place::Hole)
        first = m_d->position;
    else if (m_d->place == Place::Before)
        first = 0;
    find(criterion, first, m_d->count(), true);
}

void Recordset::FindPrevious(const QString& criterion) {
    std::size_t last = 0;
    if (d().place == Place::Row || m_d->place == Place::Hole)
        last = m_d->position;
    else if (m_d->place == Place::Behind)
        last = m_d->count();
    find(criterion, 0, last, false);
}

int Recordset::fieldCount() const {
    return static_cast<int>(d().plan().columns.size());
}

QString Recordset::fieldName(int position) const {
    const SelectPlan& plan = d().plan();
    const auto& column = plan.columns[static_cast<std::size_t>(checkedColumn(position))];
    return plan.findColumn(column.field) >= 0 ? column.field : column.table + u'.' + column.field;
}

int Recordset::checkedColumn(int position) const {
    if (position < 0 || position >= fieldCount())
        throw Error(ErrorNumber::ItemNotFound, u"Item not found in this collection."_s);
    return position;
}

int Recordset::column(const QString& name) const {
    const int column = d().plan().findColumn(name);
    if (column < 0)
        throw Error(ErrorNumber::ItemNotFound, u"Item not found in this collection: '%1'."_s.arg(name));
    return column;
}

Value Recordset::field(int position) const {
    return d().value(checkedColumn(position));
}

Value Recordset::field(const QString& name) const {
    return d().value(column(name));
}

void Recordset::AddNew() {
    d().addNew();
}

void Recordset::Edit() {
    d().edit();
}

void Recordset::setField(int position, const Value& value) {
    d().setValue(checkedColumn(position), value);
}

void Recordset::setField(const QString& name, const Value& value) {
    d().setValue(column(name), value);
}

void Recordset::Update() {
    d().update();
}

void Recordset::CancelUpdate() {
    d().cancelUpdate();
}

void Recordset::Delete() {
    d().deleteRow();
}

Recordset::BookmarkType Recordset::Bookmark() const {
    return d().bookmark();
}

void Recordset::setBookmark(BookmarkType bookmark) {
    d().leaveRow();
    const auto row = m_d->positionOf(bookmark);
    if (!row)
        throw Error(ErrorNumber::NotABookmark, u"Not a valid bookmark."_s);
    m_d->goTo(*row);
}

Recordset::BookmarkType Recordset::LastModified() const {
    return d().lastModified();
}

} // namespace dao
