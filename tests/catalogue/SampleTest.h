#pragma once

#include "catalogue/Sample.h"
#include "common/tamfx/XmlDocument.h"
#include "components/ComponentTable.h"
#include "support/PanelTest.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace PANFx::Components {

void PrintTo(const ComponentEntry& entry, std::ostream* out);

} // namespace PANFx::Components

namespace PANFx::Testing {

/** All keywords of layout files, in the order of the three tables. */
std::vector<Components::ComponentEntry> allEntries();

/** The name of a test about one keyword. */
std::string keywordOf(const ::testing::TestParamInfo<Components::ComponentEntry>& info);

/** The class of a component, without its namespace. */
std::string classNameOf(const Components::ZELComponent& component);

/** The fixture of tests that build samples: with the pictures that a sample may name. */
class SampleTest : public PanelTest
{
protected:
    SampleTest();

    TAMFx::Common::Xml::XmlDocument m_document; ///< for readSample(), as is the next
    Sample m_sample;
};

} // namespace PANFx::Testing
