#pragma once

#include "common/tamfx/Object.h"

namespace PANFx::Testing {

/** An object for collections that counts how many of its kind are alive. */
class Witness : public TAMFx::Data::Object
{
public:
    Witness() { ++alive; }
    Witness(const Witness&) = delete;
    Witness& operator=(const Witness&) = delete;
    ~Witness() override { --alive; }

    static inline int alive = 0;
};

} // namespace PANFx::Testing
