#pragma once

#include "answers.h"
#include "arm.h"
#include "faults.h"
#include "fileserver.h"
#include "frames.h"
#include "hotupdate.h"
#include "iosignals.h"
#include "program.h"
#include "projects.h"
#include "registers.h"
#include "robotstate.h"
#include "systemvariables.h"
#include "variables.h"

#include <QJsonObject>
#include <QStringList>
#include <QVector>
#include <optional>

namespace simulator
{

/** One step of a timeline: control lines that are carried out by themselves. */
struct TimelineStep {
    int after = 0; ///< milliseconds from the start to the first line
    int every = 0; ///< milliseconds between lines, in turn and over again; 0: once, all lines
    QStringList lines;
};

/** What a simulator starts with. Members and their defaults: docs/simulator.md. */
struct Scenario {
    static constexpr qint64 kMaxFileSize = qint64(16) * 1024 * 1024;

    RobotState::Values robot;
    Arm::Kind arm = Arm::Kind::Six;
    Joints joints; ///< within the arm's limits; empty: its natural pose
    Frames::Values frames;
    QJsonObject hub;
    Answers answers;
    QVector<Fault> faults;
    QVector<TimelineStep> timeline;
    IoSignals::Values io;
    Registers::Values registers;
    Projects::Values project;
    SystemVariables systemVariables = defaultSystemVariables();
    QVector<Variables::Variable> variables;
    QVector<HotUpdateRule> hotUpdate;
    Program::Values program;
    FileOptions files; ///< no member of a scenario file

    /** Nothing where the file can't be read or is no scenario; then `error` names the file, the
     *  path of the member and what is wrong with it. */
    static std::optional<Scenario> fromFile(const QString &path, QString *error);
    /** The same for the text of such a file; the error lacks the file's name. */
    static std::optional<Scenario> fromText(const QByteArray &text, QString *error);
};

} // namespace simulator
