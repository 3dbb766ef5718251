#pragma once

#include "common/Export.h"

namespace TAMFx::Util::System {

/** Holds the id of a System V semaphore set; below 0 where there is none. */
class QTPANFX_EXPORT Semaphore
{
public:
    int m_nSemID = -1; ///< what semget() gave, not removed by this class
};

} // namespace TAMFx::Util::System
