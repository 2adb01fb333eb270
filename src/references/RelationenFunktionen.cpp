#include "RelationenFunktionen.h"

#include "EngineError.h"
#include "ExpressionText.h"
#include "Globals.h"
#include "SharedState.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

void addStoredTypes(QStringList& types, dao::Recordset& references) {
    const QString everyType = u"Typ LIKE '*'"_s;
    references.FindFirst(everyType);
    while (!references.EOF_() && !references.NoMatch()) {
        addReferenceType(types, references.field(u"Typ"_s).toText());
        references.FindNext(everyType);
    }
}

} // namespace

void addReferenceType(QStringList& types, const QString& name) {
    const QString type = extract(name);
    if (!type.isEmpty() && !types.contains(type))
        types.append(type);
}

QStringList referenceTypes(SharedState& state) {
    QStringList types;
    for (const QString& name : {
             RefAbgeleitet,
             RefGegenteil,
             RefSieheAuch,
             QString(RefAndereBedeutung + state.Lang1Name),
             QString(RefAndereBedeutung + state.Lang2Name),
             QString(RefAehnlicheBedeutung + state.Lang1Name),
             QString(RefAehnlicheBedeutung + state.Lang2Name),
         })
        addReferenceType(types, name);
    try {
        addStoredTypes(types, state.DBHandler.RecordsetReferenzen);
    } catch (const dao::Error&) {
        // Without a database, or with a damaged one, the fixed names are what there is to offer.
    }
    return types;
}

} // namespace lingomat
