#include "brisa/rlmanager.h"

namespace brisa
{

RlManager &RlManager::getRlManager()
{
    static RlManager record;
    return record;
}

} // namespace brisa
