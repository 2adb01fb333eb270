#include "Globals.h"

using namespace Qt::StringLiterals;

namespace lingomat {

QString UILanguage;
QString LastErrorText;
QString KeinEintrag;
QString RefAbgeleitet;
QString RefGegenteil;
QString RefSieheAuch;
QString RefAndereBedeutung;
QString RefAehnlicheBedeutung;

QString ProductName() {
    return u"Lingomat"_s;
}

QString VersionText() {
    return u"3.1A"_s;
}

QString AppName() {
    return u"LMT"_s;
}

void setInterfaceLanguage(const QString& language) {
    UILanguage = language;
    KeinEintrag = uiText(u"<kein Eintrag>"_s, u"<no entry>"_s);
    RefAbgeleitet = uiText(u"Abgeleitet bzw. Grundform von"_s, u"Derived from"_s);
    RefGegenteil = uiText(u"Gegenteil von"_s, u"Opposite of"_s);
    RefSieheAuch = uiText(u"Siehe auch"_s, u"See also"_s);
    RefAndereBedeutung =
        uiText(u"Andere Bedeutung für Ausdruck auf "_s, u"Different meaning for expression in "_s);
    RefAehnlicheBedeutung =
        uiText(u"Ähnliche Bedeutung für Ausdruck auf "_s, u"Similar meaning for expression in "_s);
}

} // namespace lingomat
