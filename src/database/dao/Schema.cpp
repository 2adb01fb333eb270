#include "Schema.h"

namespace dao {

int TableDef::fieldIndex(QStringView name) const {
    for (int i = 0; i < Fields.size(); ++i)
        if (Fields[i].Name.compare(name, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

bool holdsText(DataType type) {
    return type == DataType::Text || type == DataType::Memo || type == DataType::Date;
}

} // namespace dao
