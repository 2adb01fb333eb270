#include "JetMutations.h"

#include "JetFile.h"

#include <QBuffer>

#include <random>

namespace lingomat {

namespace {

/// Damages bytes in one of several ways.
class Mutator {
public:
    Mutator(QByteArray bytes, unsigned seed) : m_bytes(std::move(bytes)), m_random(seed) {}

    QByteArray run() {
        m_page = m_bytes.size() > 0x14 && m_bytes[0x14] == 0 ? 2048 : 4096;
        switch (below(8)) {
        case 0: changeBytes(1 + below(4), 0, m_bytes.size()); break;
        case 1: changeBytes(1 + below(400), m_page, m_bytes.size() - m_page); break;
        case 2: changeOnePage(1 + below(40)); break;
        case 3: plantNumbers(1 + below(8)); break;
        case 4: copyPage(); break;
        case 5: fillPart(); break;
        case 6: changeStartOfPages(); break;
        default: m_bytes.truncate(below(m_bytes.size())); break;
        }
        return m_bytes;
    }

private:
    qsizetype below(qsizetype limit) {
        return limit <= 0 ? 0 : static_cast<qsizetype>(m_random() % static_cast<quint64>(limit));
    }
    qsizetype anyPage() { return below(m_bytes.size() / m_page) * m_page; }

    void changeBytes(qsizetype count, qsizetype from, qsizetype length) {
        for (; count > 0; --count)
            m_bytes[from + below(length)] = static_cast<char>(m_random());
    }
    void changeOnePage(qsizetype count) { changeBytes(count, anyPage(), m_page); }

    /// Numbers at the limits, where lengths and places may stand.
    void plantNumbers(qsizetype count) {
        constexpr quint32 numbers[] = {0,      1,      2,      0x7F,       0xFF,       0x7FFF,
                                       0xFFFF, 0x8000, 0x4000, 0x7FFFFFFF, 0xFFFFFFFF, 0x80000000};
        const qsizetype page = anyPage();
        for (; count > 0; --count) {
            const quint32 number = numbers[below(std::size(numbers))];
            const qsizetype at = page + below(m_page - 4);
            const qsizetype length = 1 << below(3);
            for (qsizetype i = 0; i < length; ++i)
                m_bytes[at + i] = static_cast<char>(number >> 8 * i & 0xFF);
        }
    }
    void copyPage() {
        const QByteArray page = m_bytes.mid(anyPage(), m_page);
        m_bytes.replace(anyPage(), page.size(), page);
    }
    void fillPart() {
        const qsizetype at = below(m_bytes.size());
        const qsizetype length = below(std::min<qsizetype>(m_bytes.size() - at, 600));
        m_bytes.replace(at, length, QByteArray(length, static_cast<char>(below(2) == 0 ? 0 : m_random())));
    }
    /// Where pages tell their type, owner, number of rows and the places of these.
    void changeStartOfPages() {
        for (qsizetype pages = 1 + below(3); pages > 0; --pages)
            changeBytes(1 + below(6), anyPage(), 64);
    }

    QByteArray m_bytes;
    qsizetype m_page = 4096;
    std::mt19937 m_random;
};

qint64 charactersOf(const jet::Row& row) {
    qint64 characters = 0;
    for (const jet::Cell& cell : row)
        if (const auto* text = std::get_if<QString>(&cell))
            characters += text->size();
    return characters;
}

} // namespace

QByteArray mutated(const QByteArray& sound, unsigned seed) {
    return Mutator(sound, seed).run();
}

JetExercise exerciseJet(const QByteArray& bytes) {
    JetExercise exercise;
    try {
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(bytes);
        buffer->open(QIODevice::ReadOnly);
        const jet::JetFile file(std::move(buffer));
        exercise.opened = true;
        for (const QString& name : file.tableNames()) {
            try {
                exercise.characters += file.table(name).name.size();
                ++exercise.tables;
                const jet::Tally tally = file.readRows(
                    name, [&](const jet::Row& row) { exercise.characters += charactersOf(row); });
                exercise.rows += tally.rowsRead;
            } catch (const jet::Error&) {
                continue;
            }
        }
    } catch (const jet::Error&) {
        return exercise;
    }
    return exercise;
}

} // namespace lingomat
