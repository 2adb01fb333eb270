#pragma once

#include "QtPrinters.h"

#include <QObject>
#include <QString>

#include <concepts>

namespace lingomat {

namespace detail {

/// The one object among `candidates` that belongs to the form itself rather than to another window below it.
/// Throws std::runtime_error, listing the names that exist, where there is none or more than one.
[[nodiscard]] QObject& pickChild(const QObject& parent, const QString& name, const QString& wanted,
                                 const QObjectList& candidates);

} // namespace detail

/// The child of the given name and type, at any depth: `child<QPushButton>(form, "Command6")`.
/// A name that does not exist ends the test and lists those that do.
template <typename T>
T& child(const QObject& parent, const QString& name) {
    QObjectList candidates;
    const auto found = parent.findChildren<T*>(name);
    for (T* object : found)
        candidates.append(object);
    const QString wanted = QString::fromLatin1(T::staticMetaObject.className());
    return static_cast<T&>(detail::pickChild(parent, name, wanted, candidates));
}

template <typename T>
T& child(const QObject& parent, const char* name) {
    return child<T>(parent, QString::fromUtf8(name));
}

template <typename T>
T& child(const QObject* parent, const char* name) {
    return child<T>(*parent, QString::fromUtf8(name));
}

/// Whether a child of that name exists at all, of whatever type.
[[nodiscard]] bool hasChild(const QObject& parent, const char* name);

} // namespace lingomat
