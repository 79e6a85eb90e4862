#include "plugincheck.h"
#include "pluginfiles.h"

#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

using panel::PluginRecord;

/** What the panel says about a library that it has not opened. */
class TestPluginCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sentence()
    {
        using pluginfiles::bytes;
        const auto patched = [](const QByteArray &from, const QByteArray &to) {
            return pluginfiles::patched(QStringLiteral("sound"), from, to);
        };
        const QByteArray tagged = QByteArray("=") + pluginfiles::machine;
        const QString here = QStringLiteral(" and this panel is %1: ").arg(pluginfiles::machine);
        const QByteArray sound = bytes(QStringLiteral("sound"));
        const char *noWord = "x.so has a name in its tag that is not a plain word: ";
        const char *damaged = "x.so has a damaged plugin tag: ";
        const std::pair<QByteArray, QString> rows[] = {
            {sound, ""},
            {"#!/bin/sh\n",
             "x.so is not a library: put the file there that the plugin's build made, or remove "
             "this one."},
            {"", "x.so is not a library: "},
            {sound.left(sound.size() / 2), "x.so is cut short: "},
            {bytes(QStringLiteral("untagged")), "x.so has no plugin tag, "},
            {pluginfiles::foreign(QStringLiteral("sound")),
             QStringLiteral("x.so was built for ") + pluginfiles::otherMachine + here},
            {patched("\177ELF\2", "\177ELF\1"),
             QStringLiteral("x.so was built for 32-bit ") + pluginfiles::machine + here},
            {patched(tagged, QByteArray("=sparc99").left(tagged.size())),
             QStringLiteral("x.so was built for ") + QByteArray("sparc99").left(tagged.size() - 1)
                 + here},
            {patched("library=1.0.", "library=1.9."),
             "x.so was built against version 1.9.2 of the plugin library and this panel has "
             "1.0.2: build it against 1.0.2."},
            {patched("library=1.0.2", "library=1.0.9"), ""},
            {patched("library=1", "library=x"), "x.so was built against version x.0.2 "},
            {patched("qt=5.15.", "qt=5.99."), "x.so was built against Qt 5.99."},
            {patched("qt=5.15.", "qt=6.15."), "x.so was built against Qt 6.15."},
            {patched("qt=5.15.", "qt=5.12."), ""},
            {patched("-cxx11", "-cxx77"),
             "x.so was built with the compiler interface libstdc++-cxx77 "},
            {patched("name=sound", "name=../.."), noWord},
            {patched("name=sound", "name=/root"), noWord},
            {patched("name=sound", "name=a.b.c"), noWord},
            {patched("name=sound", "name=a\x1b[1m"), damaged},
            {patched("compiler=", "compiter="), damaged},
            {patched("zeplet-plugin-tag=1", "zeplet-plugin-tag=2"), damaged},
        };
        for (const auto &[content, sentence] : rows) {
            const QTemporaryDir directory;
            pluginfiles::write(directory.path(), QStringLiteral("x.so"), content);
            const PluginRecord record = panel::checkPlugin(QFileInfo(directory.filePath("x.so")));
            const QByteArray told = (record.sentence + " / " + sentence).toUtf8();
            QVERIFY2(sentence.isEmpty() ? record.sentence.isEmpty()
                                        : record.sentence.startsWith(sentence),
                     told.constData());
            QCOMPARE(record.state == PluginRecord::Running, sentence.isEmpty());
            QVERIFY(sentence.isEmpty() || record.sentence.endsWith('.'));
            QVERIFY(panel::isPlainName(record.name()));
        }
    }

    void specialFiles()
    {
        const QTemporaryDir directory;
        const QString pipe = directory.filePath("pipe.so");
        QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
        QVERIFY(QFile::link(directory.filePath("nowhere"), directory.filePath("dangling.so")));
        for (const QString &name : {QStringLiteral("pipe.so"), QStringLiteral("dangling.so")}) {
            const PluginRecord record = panel::checkPlugin(QFileInfo(directory.filePath(name)));
            QCOMPARE(record.state, PluginRecord::Refused);
            QVERIFY(record.sentence.contains(QStringLiteral("is not a plain file")));
        }
    }

    // What real libraries lack is in the session's test.
    void linkerMessages()
    {
        const std::pair<const char *, const char *> rows[] = {
            {"Cannot load library /p/x.so: (/p/x.so: undefined symbol: grip)",
             "x.so uses grip, which no library of this panel has: link the library that defines "
             "it."},
            {"Cannot load library /p/x.so: (/lib/libc.so.6: version `GLIBC_2.99' not found "
             "(required by /p/x.so))",
             "x.so needs GLIBC_2.99, which is newer than this panel's: build it on the panel's "
             "system."},
            {"no luck\n  at all",
             "x.so can't be opened (no luck at all): build it again for this panel."},
        };
        for (const auto &[message, sentence] : rows)
            QCOMPARE(panel::linkerSentence(QStringLiteral("x.so"), message), QString(sentence));
    }
};

QTEST_GUILESS_MAIN(TestPluginCheck)
#include "tst_plugincheck.moc"
