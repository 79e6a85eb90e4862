#pragma once

#include <QObject>
#include <QString>

namespace kest
{
class CenterWidget;
}

namespace panel
{

/** Remembers which page of the centre area was shown last, in the file "page" of the runtime
 *  directory. GUI thread. */
class LastPage : public QObject
{
    Q_OBJECT

public:
    explicit LastPage(const QString &runtimeDirectory);

    /** The key that was kept; empty where there is none. It may name a page that is gone. */
    QString key() const;
    /** Keeps the key of every page that is shown from now on, for the life of this object. */
    void follow(const kest::CenterWidget *center);

private:
    void keep(const QString &key) const;

    const QString m_file;
};

} // namespace panel
