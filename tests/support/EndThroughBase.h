#pragma once

#include <memory>

namespace PANFx::Testing {

/** Whether an object of a derived class ends as a whole when it is deleted through @p Base. */
template <class Base>
bool endsThroughItsBase()
{
    class Own : public Base
    {
    public:
        explicit Own(bool& gone)
            : m_gone(gone)
        {
        }
        ~Own() override { m_gone = true; }

    private:
        bool& m_gone;
    };
    bool gone = false;
    std::unique_ptr<Base> object = std::make_unique<Own>(gone);
    object.reset();
    return gone;
}

} // namespace PANFx::Testing
