#include "Sqlite.h"

#include "LikePattern.h"
#include "SqlCompiler.h"
#include "TextRules.h"

#include <QString>

namespace dao {

namespace {

int compareFolded(void* /*context*/, int sizeA, const void* a, int sizeB, const void* b) {
    const QString left = fromUtf8({static_cast<const char*>(a), sizeA});
    const QString right = fromUtf8({static_cast<const char*>(b), sizeB});
    return criteria::compareText(left, right);
}

QString argumentText(sqlite3_value* argument) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(argument));
    return fromUtf8({text, sqlite3_value_bytes(argument)});
}

/// matches_pattern(pattern, value). The compiled pattern stays with the statement while it runs.
void matchesPattern(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return sqlite3_result_null(context);
    try {
        auto* pattern = static_cast<criteria::LikePattern*>(sqlite3_get_auxdata(context, 0));
        std::unique_ptr<criteria::LikePattern> fresh;
        if (pattern == nullptr) {
            fresh = std::make_unique<criteria::LikePattern>(argumentText(arguments[0]));
            pattern = fresh.get();
        }
        sqlite3_result_int(context, pattern->matches(argumentText(arguments[1])) ? 1 : 0);
        if (fresh)
            sqlite3_set_auxdata(context, 0, fresh.release(),
                                [](void* p) { delete static_cast<criteria::LikePattern*>(p); });
    } catch (const std::exception& error) {
        sqlite3_result_error(context, error.what(), -1);
    }
}

} // namespace

void registerTextRules(sqlite3* handle) {
    const int collation = sqlite3_create_collation_v2(handle, criteria::FoldedCollation, SQLITE_UTF8, nullptr,
                                                      compareFolded, nullptr);
    const int function = sqlite3_create_function_v2(handle, criteria::PatternFunction, 2,
                                                    SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY,
                                                    nullptr, matchesPattern, nullptr, nullptr, nullptr);
    if (collation != SQLITE_OK || function != SQLITE_OK)
        throw sqliteError(handle);
}

} // namespace dao
