#include "catalogue/SampleTest.h"

#include "components/ZELComponent.h"

#include <cstdlib>
#include <cxxabi.h>
#include <ostream>
#include <typeinfo>

void PANFx::Components::PrintTo(const ComponentEntry& entry, std::ostream* out)
{
    *out << entry.keyword;
}

namespace PANFx::Testing {

using Components::ComponentEntry;

std::vector<ComponentEntry> allEntries()
{
    std::vector<ComponentEntry> all = Components::componentTable();
    for (const auto* table : {&Components::buttonTable(), &Components::listTable()})
        all.insert(all.end(), table->begin(), table->end());
    return all;
}

std::string keywordOf(const ::testing::TestParamInfo<ComponentEntry>& info)
{
    return info.param.keyword;
}

std::string classNameOf(const Components::ZELComponent& component)
{
    int status = 0;
    char* const name = abi::__cxa_demangle(typeid(component).name(), nullptr, nullptr, &status);
    const std::string whole = name ? name : "";
    std::free(name);
    return whole.substr(whole.rfind(':') + 1);
}

SampleTest::SampleTest()
{
    writePicture("up.png", 60, 40, Qt::red);
    writePicture("down.png", 60, 40, Qt::green);
    writePicture("dim.png", 60, 40, Qt::gray);
    writePicture("start.png", 8, 40, Qt::darkRed);
    writePicture("mid.png", 4, 40, Qt::darkGreen);
    writePicture("end.png", 8, 40, Qt::darkBlue);
    writePicture("icon.png", 20, 20, Qt::yellow);
    writePicture("back.png", 100, 50, Qt::cyan);
}

} // namespace PANFx::Testing
