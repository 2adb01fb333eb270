#include "ChildFinder.h"

#include <QWidget>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

bool belongsToAnotherWindow(const QObject* object, const QObject& form) {
    for (const QObject* above = object->parent(); above && above != &form; above = above->parent()) {
        const auto* widget = qobject_cast<const QWidget*>(above);
        if (widget && widget->isWindow() && widget->windowType() != Qt::Popup) // menus belong to their form
            return true;
    }
    return false;
}

QString namesBelow(const QObject& parent) {
    QStringList names;
    const QObjectList all = parent.findChildren<QObject*>();
    for (const QObject* object : all) {
        if (!object->objectName().isEmpty() && !object->objectName().startsWith("qt_"_L1))
            names.append(object->objectName() + u" ("_s +
                         QString::fromLatin1(object->metaObject()->className()) + u')');
    }
    names.sort();
    return names.isEmpty() ? u"(nothing has a name)"_s : names.join(u"\n  "_s);
}

[[noreturn]] void fail(const QObject& parent, const QString& problem) {
    const QString text =
        problem + u" below \""_s + parent.objectName() + u"\". There are:\n  "_s + namesBelow(parent);
    throw std::runtime_error(text.toStdString());
}

} // namespace

QObject& detail::pickChild(const QObject& parent, const QString& name, const QString& wanted,
                           const QObjectList& candidates) {
    QObjectList own;
    for (QObject* candidate : candidates) {
        if (!belongsToAnotherWindow(candidate, parent))
            own.append(candidate);
    }
    if (own.isEmpty())
        own = candidates;
    if (own.isEmpty())
        fail(parent, u"No "_s + wanted + u" \""_s + name + u'"');
    if (own.size() > 1)
        fail(parent, u"More than one "_s + wanted + u" \""_s + name + u'"');
    return *own.first();
}

bool hasChild(const QObject& parent, const char* name) {
    return parent.findChild<QObject*>(QString::fromUtf8(name)) != nullptr;
}

} // namespace lingomat
