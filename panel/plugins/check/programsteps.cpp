#include "checksteps.h"

#include "projectfiles.h"

#include <brisa/basecontentwidget.h>
#include <brisa/rlmanager.h>
#include <ostrel/modulemanager.h>
#include <zeplet/zeplet.h>

#include <QFile>
#include <QRegularExpression>
#include <memory>

using namespace zeplet;

namespace
{

const QString type = QStringLiteral("CheckTorch");
const QByteArray program = "// seam über 缝\n  CheckTorch // twice\n";

/** As a host's editor would: by the record. */
QString registerInstruction()
{
    RLManager().createData(
        QStringLiteral("check"), type, QStringLiteral("made by the check"), [] { return nullptr; },
        nullptr);
    const brisa::RlManager &record = brisa::RlManager::getRlManager();
    const QRegularExpression pattern(record.patterns.value(QStringLiteral("c_") + type));
    const QStringList lines = QString::fromUtf8(program).split(QLatin1Char('\n'));
    const std::unique_ptr<brisa::BaseContentWidget> widget(
        record.insertWidgets.value(type)(nullptr));
    return pattern.match(lines.at(1)).hasMatch() && !pattern.match(lines.at(0)).hasMatch()
            && widget->CheckInsert()
        ? QString()
        : QStringLiteral("the record does not recognise it");
}

QString sendProgram()
{
    const QString file = QStringLiteral("/program/seam.prog");
    const QString project = zepletInterface()->getCurProject().section(QLatin1Char('/'), -1);
    const QString path = projectfiles::panelDirectory() + file;
    if (!ostrel::ModuleManager::writeFile(path, program))
        return QStringLiteral("it was not written");
    if (!SyncTool::instance()->pushOneFile(path, QStringLiteral("hmi/") + project + file, false))
        return QStringLiteral("it was not sent");
    QFile sent(projectfiles::controllerDirectory(project) + file);
    return sent.open(QIODevice::ReadOnly) && sent.readAll() == program
        ? QString()
        : QStringLiteral("the controller has other bytes");
}

} // namespace

CheckSteps programSteps(CheckSession *)
{
    return {atOnce(QStringLiteral("instruction registered and recognised"), registerInstruction),
            atOnce(QStringLiteral("program written, sent, and the same there"), sendProgram)};
}
