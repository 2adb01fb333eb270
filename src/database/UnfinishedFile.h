#pragma once

#include <QString>

namespace lingomat {

/// A file that is written beside its place under a name of its own, and takes its place when it is complete.
/// Until then nothing stands there, or what stood there before. One that does not get so far is removed, with
/// what the engine may have left beside it.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const QString& target);
    ~UnfinishedFile();
    Q_DISABLE_COPY_MOVE(UnfinishedFile)

    /// Where to write it: in the target's folder, and nothing is there yet.
    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] const QString& target() const { return m_target; }

    /// Gives it its name. The file is closed. With `replace`, in place of a file that is there; nobody sees
    /// the folder without one of the two. Errors: 3204 there is a file and it is not to be replaced, 3051.
    void takePlace(bool replace);

private:
    const QString m_target;
    const QString m_path;
    bool m_done = false;
};

/// Whether both names lead to one file, through links too. False where either does not exist.
[[nodiscard]] bool isSameFile(const QString& a, const QString& b);

} // namespace lingomat
