#include "ErrorTrap.h"
#include "Globals.h"
#include "Liste.h"
#include "SharedState.h"
#include "ValueLists.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

struct StandardValue {
    const char16_t* kind;
    const char16_t* german;
    const char16_t* english;
};

constexpr StandardValue standardValues[] = {
    {u"Wortart", u"Substantiv", u"noun"},
    {u"Wortart", u"Adjektiv", u"adjective"},
    {u"Wortart", u"Verb", u"verb"},
    {u"Grammatikalisch", u"männlich", u"masculine"},
    {u"Grammatikalisch", u"weiblich", u"feminine"},
    {u"Grammatikalisch", u"sächlich", u"neuter"},
    {u"Grammatikalisch", u"Singular", u"singular"},
    {u"Grammatikalisch", u"Plural", u"plural"},
    {u"Funktionales", u"Umgangssprache", u"colloquial"},
    {u"Funktionales", u"formell", u"formal"},
    {u"Funktionales", u"vulgär", u"vulgar"},
};

} // namespace

void Liste::GetProperties() {
    if (!m_context.state.databaseIsOpen())
        return;
    trapped(m_context.prompts, [this] {
        CDBHandler& session = m_context.state.DBHandler;
        clearValueList(u"Wortart"_s);
        clearValueList(u"GrammatikalischBox"_s);
        fillValueList(u"Grammatikalisch"_s, session.RecordsetGrammatikalisch, u"Attribut_Text"_s,
                      u"Attribut_Text LIKE '*'"_s);
        clearValueList(u"FunktionalesBox"_s);
        fillValueList(u"Funktionales"_s, session.RecordsetFunktional, u"Attribut_Text"_s,
                      u"Attribut_Text LIKE '*'"_s);
        clearValueList(u"Bereich"_s);
        fillValueList(u"Bereich"_s, session.RecordsetBereiche, u"Bereich_Text"_s, u"ID LIKE '*'"_s);
        clearValueList(u"Quelle"_s);
        fillValueList(u"Quelle"_s, session.RecordsetSuche, u"Quelle"_s, u"Quelle LIKE '*'"_s);
        fillValueList(u"Wortart"_s, session.RecordsetSuche, u"wortart"_s, u"Wortart LIKE '*'"_s);
        AddStdToComboBoxes();
    });
}

void Liste::AddStdToComboBoxes() {
    for (const StandardValue& value : standardValues) {
        m_context.values.AddToComboBoxes(
            uiText(QString::fromUtf16(value.german), QString::fromUtf16(value.english)),
            QString::fromUtf16(value.kind));
    }
}

void Liste::clearValueList(const QString& box) {
    if (!m_context.values.ClearComboBoxes(box))
        throw dao::alreadyReported();
}

void Liste::fillValueList(const QString& kind, dao::Recordset& table, const QString& field,
                          const QString& criterion) {
    for (table.FindFirst(criterion); !table.NoMatch() && !table.EOF_(); table.FindNext(criterion))
        m_context.values.AddToComboBoxes(table.field(field).toText(QString()), kind);
}

} // namespace lingomat
