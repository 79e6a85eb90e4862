#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>

/** Runs a plugin's code. What it throws ends here, and becomes the second half of a sentence;
 *  empty: nothing was thrown. */
template <typename Call>
QString faultOf(Call call)
{
    try {
        call();
        return QString();
    } catch (const std::bad_function_call &) {
        return QCoreApplication::translate("program", "its plugin gave an empty function");
    } catch (const std::exception &fault) {
        return QCoreApplication::translate("program", "its plugin failed with \"%1\"")
            .arg(QString::fromUtf8(fault.what()).simplified().left(200));
    } catch (...) {
        return QCoreApplication::translate("program", "its plugin failed without saying why");
    }
}
