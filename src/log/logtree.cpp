#include <zeplet/log/logtree_p.h>

#include <QFile>

#include <algorithm>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <numeric>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace zeplet
{

namespace
{

struct DirectoryCloser {
    void operator()(DIR *directory) const { ::closedir(directory); }
};
using Directory = std::unique_ptr<DIR, DirectoryCloser>;

Directory openDirectory(int root, const QByteArray &path)
{
    const char *name = path.isEmpty() ? "." : path.constData();
    const int descriptor
        = ::openat(root, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return nullptr;
    }
    DIR *directory = ::fdopendir(descriptor);
    if (!directory) {
        ::close(descriptor);
    }
    return Directory(directory);
}

bool isLogName(const char *name)
{
    constexpr size_t suffix = 4;
    const size_t length = std::strlen(name);
    return length > suffix && std::memcmp(name + length - suffix, ".log", suffix) == 0;
}

/** One pass over the tree, directory by directory, without recursion. */
class Walk
{
public:
    explicit Walk(int root)
        : m_root(root)
    {
    }

    std::vector<LogTreeFile> run()
    {
        m_pending.emplace_back();
        while (!m_pending.empty()) {
            const QByteArray path = m_pending.back();
            m_pending.pop_back();
            list(path);
        }
        return std::move(m_files);
    }

private:
    void list(const QByteArray &path)
    {
        const Directory directory = openDirectory(m_root, path);
        if (!directory) {
            return;
        }
        const QByteArray prefix = path.isEmpty() ? path : path + '/';
        while (const dirent *entry = ::readdir(directory.get())) {
            if (entry->d_name[0] != '.') {
                take(::dirfd(directory.get()), *entry, prefix);
            }
        }
    }

    void take(int directory, const dirent &entry, const QByteArray &prefix)
    {
        if (entry.d_type == DT_DIR) {
            m_pending.push_back(prefix + entry.d_name);
            return;
        }
        // Some file systems tell the type only when asked.
        const bool mayBeLog = entry.d_type == DT_REG && isLogName(entry.d_name);
        struct stat status = {};
        if ((!mayBeLog && entry.d_type != DT_UNKNOWN)
            || ::fstatat(directory, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
            return;
        }
        if (S_ISDIR(status.st_mode)) {
            m_pending.push_back(prefix + entry.d_name);
            return;
        }
        if (S_ISREG(status.st_mode) && isLogName(entry.d_name)) {
            m_files.push_back({prefix + entry.d_name, status.st_size, status.st_mtim});
        }
    }

    int m_root;
    std::vector<QByteArray> m_pending;
    std::vector<LogTreeFile> m_files;
};

bool isOlder(const LogTreeFile &left, const LogTreeFile &right)
{
    return std::tie(left.modified.tv_sec, left.modified.tv_nsec, left.path)
        < std::tie(right.modified.tv_sec, right.modified.tv_nsec, right.path);
}

} // namespace

LogTree::LogTree(const QString &root)
    : m_root(::open(QFile::encodeName(root).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

LogTree::~LogTree()
{
    if (exists()) {
        ::close(m_root);
    }
}

std::vector<LogTreeFile> LogTree::files() const
{
    return exists() ? Walk(m_root).run() : std::vector<LogTreeFile>();
}

qint64 LogTree::totalSize() const
{
    const std::vector<LogTreeFile> all = files();
    return std::accumulate(all.begin(), all.end(), qint64(0),
                           [](qint64 sum, const LogTreeFile &file) { return sum + file.size; });
}

std::vector<LogTreeFile> LogTree::oldestFirst() const
{
    std::vector<LogTreeFile> all = files();
    std::sort(all.begin(), all.end(), isOlder);
    return all;
}

bool LogTree::remove(const LogTreeFile &file) const
{
    return ::unlinkat(m_root, file.path.constData(), 0) == 0;
}

} // namespace zeplet
