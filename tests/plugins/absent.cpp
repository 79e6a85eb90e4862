// The library that "dependent" needs and a panel does not have.
#include <QtGlobal>

Q_DECL_EXPORT int absentAnswer();

int absentAnswer()
{
    return 42;
}
