#pragma once

#include "components/ZELComponent.h"

#include <QWidget>

#include <string>
#include <utility>
#include <vector>

namespace PANFx::Testing {

/** The least that a component can be: what ZELComponent does, and a note of each show and hide. */
class PlainComponent : public Components::ZELComponent, public QWidget
{
public:
    PlainComponent(QWidget* parent, std::string id, std::vector<std::string>* calls = nullptr)
        : ZELComponent(std::move(id), "PlainComponent")
        , QWidget(parent)
        , m_calls(calls)
    {
    }

    void showWindow() override
    {
        note("show");
        setVisible(true);
    }

    void hideWindow() override
    {
        note("hide");
        setVisible(false);
    }

    QWidget* getQWidget() override { return this; }

    using ZELComponent::setLayout;

    /** Takes a component in as createSubComponent does with those that it makes. */
    void adopt(ZELComponent* component) { m_dqSubComponents.push_back(component); }

    /** Ids of the sub-components, in the order of the sequence. */
    std::vector<std::string> ids() const
    {
        std::vector<std::string> all;
        for (const ZELComponent* component : m_dqSubComponents)
            all.push_back(component->m_strID);
        return all;
    }

private:
    void note(const char* call)
    {
        if (m_calls)
            m_calls->push_back(std::string(call) + " " + m_strID);
    }

    std::vector<std::string>* m_calls;
};

} // namespace PANFx::Testing
