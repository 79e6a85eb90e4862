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
    void sentence_data()
    {
        using pluginfiles::bytes;
        using pluginfiles::patched;
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("sentence");
        const QString sound = QStringLiteral("sound");
        const QByteArray qt = "qt=" QT_VERSION_STR;
        const QByteArray wholeTag = "zeplet-plugin-tag=1";
        const auto row = [](const char *name, const QByteArray &content, const char *sentence) {
            QTest::newRow(name) << content << QString::fromUtf8(sentence);
        };
        row("sound", bytes(sound), "");
        row("text", "#!/bin/sh\n", "x.so is not a library: ");
        row("empty", "", "x.so is not a library: ");
        row("half", bytes(sound).left(bytes(sound).size() / 2), "x.so is cut short: ");
        row("untagged", bytes(QStringLiteral("untagged")), "x.so has no plugin tag, ");
        row("other machine",
            patched(sound, QByteArray("\3\0\x3e\0", 4), QByteArray("\3\0\xb7\0", 4)),
            "x.so was built for aarch64 and this panel is x86_64: ");
        row("tag of another machine", patched(sound, "=x86_64", "=sparc9"),
            "x.so was built for sparc9 and this panel is x86_64: ");
        row("other library", patched(sound, "library=1.0.", "library=1.9."),
            "x.so was built against version 1.9.2 of the plugin library and this panel has "
            "1.0.2: ");
        row("corrected library", patched(sound, "library=1.0.2", "library=1.0.9"), "");
        row("later Qt", patched(sound, "qt=5.15.", "qt=5.99."), "x.so was built against Qt 5.99.");
        row("other Qt", patched(sound, "qt=5.15.", "qt=6.15."), "x.so was built against Qt 6.15.");
        row("earlier Qt", patched(sound, "qt=5.15.", "qt=5.12."), "");
        row("other compiler", patched(sound, "-cxx11", "-cxx77"),
            "x.so was built with the compiler interface libstdc++-cxx77 ");
        row("no version", patched(sound, "library=1", "library=x"),
            "x.so was built against version x.0.2 ");
        row("path for a name", patched(sound, "name=sound", "name=../.."),
            "x.so has a name in its tag that is not a plain word: ");
        row("absolute name", patched(sound, "name=sound", "name=/root"),
            "x.so has a name in its tag that is not a plain word: ");
        row("dotted name", patched(sound, "name=sound", "name=a.b.c"),
            "x.so has a name in its tag that is not a plain word: ");
        row("control character", patched(sound, "name=sound", "name=a\x1b[1m"),
            "x.so has a damaged plugin tag: ");
        row("member missing", patched(sound, "compiler=", "compiter="),
            "x.so has a damaged plugin tag: ");
        row("later tag", patched(sound, wholeTag, "zeplet-plugin-tag=2"),
            "x.so has a damaged plugin tag: ");
    }

    void sentence()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, sentence);
        const QTemporaryDir directory;
        pluginfiles::write(directory.path(), QStringLiteral("x.so"), content);
        const PluginRecord record = panel::checkPlugin(QFileInfo(directory.filePath("x.so")));
        QVERIFY2(sentence.isEmpty() || record.sentence.startsWith(sentence),
                 qPrintable(record.sentence));
        QCOMPARE(record.state, sentence.isEmpty() ? PluginRecord::Running : PluginRecord::Refused);
        QCOMPARE(record.sentence.isEmpty(), sentence.isEmpty());
        QVERIFY(sentence.isEmpty() || record.sentence.endsWith('.'));
        QVERIFY(panel::isPlainName(record.name()));
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

    void linkerMessages_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("C++ symbol")
            << "Cannot load library /p/x.so: (/p/x.so: undefined symbol: _ZN7gripper5closeEi)"
            << "x.so uses gripper::close(int), which no library of this panel has: link the "
               "library "
               "that defines it.";
        QTest::newRow("C symbol")
            << "Cannot load library /p/x.so: (/p/x.so: undefined symbol: grip)"
            << "x.so uses grip, which no library of this panel has: link the "
               "library that defines it.";
        QTest::newRow("library")
            << "Cannot load library /p/x.so: (libgrip.so.2: cannot open shared object file: No "
               "such "
               "file or directory)"
            << "x.so needs the library libgrip.so.2, which this panel lacks: install libgrip.so.2.";
        QTest::newRow("version")
            << "Cannot load library /p/x.so: (/lib/libc.so.6: version `GLIBC_2.99' not found "
               "(required by /p/x.so))"
            << "x.so needs GLIBC_2.99, which is newer than this panel's: build it on the panel's "
               "system.";
        QTest::newRow("other") << "no luck\n  at all"
                               << "x.so can't be opened (no luck at all): build it again for this "
                                  "panel.";
    }

    void linkerMessages()
    {
        QFETCH(QString, message);
        QFETCH(QString, sentence);
        QCOMPARE(panel::linkerSentence(QStringLiteral("x.so"), message), sentence);
    }
};

QTEST_GUILESS_MAIN(TestPluginCheck)
#include "tst_plugincheck.moc"
