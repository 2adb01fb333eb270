#pragma once

// Private to the reader.

#include "ByteView.h"
#include "Layout.h"

#include <QByteArray>
#include <QIODevice>

#include <array>
#include <memory>
#include <vector>

namespace jet {

/// A file as a row of pages, of which it holds a few at a time. Its header has been checked and deciphered.
class PageFile {
public:
    /// The device is open for reading. Errors: NotJet, Newer, Protected, Damaged, Device.
    explicit PageFile(std::unique_ptr<QIODevice> device);

    [[nodiscard]] const Layout& layout() const { return *m_layout; }
    [[nodiscard]] int codePage() const { return m_codePage; }
    /// Whole pages; what is left of one at the end of a file that was cut off does not count.
    [[nodiscard]] quint32 pageCount() const { return m_pageCount; }
    /// Whether the file ends within a page.
    [[nodiscard]] bool isCutOff() const { return m_cutOff; }
    /// Of a data page: the definition page of the table that it belongs to; 0 for every other page, and for
    /// one that does not exist.
    [[nodiscard]] quint32 owner(quint32 page) const { return page < m_owners.size() ? m_owners[page] : 0; }
    /// Its bytes. Errors: Damaged for a page that does not exist, Device.
    [[nodiscard]] QByteArray page(quint32 number) const;
    /// As above; Damaged as well where it is of another type.
    [[nodiscard]] QByteArray page(quint32 number, PageType type) const;

private:
    void readHeader();
    void decipherHeader(const QByteArray& raw);
    [[nodiscard]] bool hasPassword(ByteView header) const;
    void readOwners();
    [[nodiscard]] QByteArray read(qint64 at, qint64 length) const;

    struct HeldPage {
        quint32 number = 0;
        QByteArray bytes;
    };

    std::unique_ptr<QIODevice> m_device;
    const Layout* m_layout = nullptr;
    int m_codePage = 0;
    quint32 m_pageCount = 0;
    bool m_cutOff = false;
    std::vector<quint32> m_owners; ///< one a page
    mutable std::array<HeldPage, 32> m_held;
};

} // namespace jet
