#pragma once

#include "checkscript.h"
#include "checksession.h"

using CheckSteps = QList<CheckStep>;

/** The steps of the whole session. Each group goes on from where the one before ended; the session
 *  has to outlive the steps. */
CheckSteps allSteps(CheckSession *session);

CheckSteps startSteps(CheckSession *session);
CheckSteps controllerSteps(CheckSession *session);
CheckSteps watchSteps(CheckSession *session);
CheckSteps projectSteps(CheckSession *session);
CheckSteps pointSteps(CheckSession *session);
CheckSteps hotUpdateSteps(CheckSession *session);
CheckSteps variableSteps(CheckSession *session);
CheckSteps programSteps(CheckSession *session);
CheckSteps motionSteps(CheckSession *session);
CheckSteps signalSteps(CheckSession *session);
CheckSteps persistentVariableSteps(CheckSession *session);
CheckSteps runSteps(CheckSession *session);
CheckSteps lossSteps(CheckSession *session);
CheckSteps endSteps(CheckSession *session);

// Kinds of steps.

/** Passes where problem, which is called once and may block, has nothing to say. */
CheckStep atOnce(const QString &title, const std::function<QString()> &problem);
/** Passes when exactly these events came after the action, in this order. */
CheckStep eventStep(CheckSession *session, const QString &title,
                    const std::function<void()> &action, const QList<int> &types);
/** Passes where the edit returns true and data store, panel and controller then hold the same. The
 *  record may not get lost from then on. */
CheckStep editStep(CheckSession *session, const QString &title, const QString &kind,
                   const QString &name, const std::function<bool()> &edit);
/** Passes when the controller answers the control line with a result that fits. */
CheckStep answerStep(CheckSession *session, const QString &title, const QString &line,
                     const std::function<bool(const QJsonValue &)> &fits);
/** Passes when the panel tells the operator something with this text after the action. */
CheckStep messageStep(CheckSession *session, const QString &title,
                      const std::function<void()> &action, const QString &message);

/** Sends a request to the controller without waiting. */
void send(const QString &command, const QJsonValue &arguments = QJsonValue());
QString toldEvents(const CheckSession *session);
