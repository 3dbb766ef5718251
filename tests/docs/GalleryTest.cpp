// The layouts of the gallery: each is loaded, brought into all the states that the gallery shows,
// and painted, and writes no error lines but those of a normal path.

#include "components/ComponentTable.h"
#include "gallery/Comparison.h"
#include "gallery/Scenes.h"
#include "gallery/Stage.h"
#include "support/PanelTest.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

using namespace PANFx::Testing;
using gallery::Exhibit;
using gallery::Room;
using gallery::Scene;
using gallery::Stage;

namespace gallery {

void PrintTo(const Exhibit& exhibit, std::ostream* out)
{
    *out << exhibit.keyword;
}

} // namespace gallery

namespace {

std::vector<Exhibit> allExhibits()
{
    std::vector<Exhibit> all;
    for (const Room& room : gallery::allRooms())
        all.insert(all.end(), room.exhibits.begin(), room.exhibits.end());
    return all;
}

struct Line
{
    const char* className;
    const char* text;
    int times;
};

// What composites make from attributes of their own has no layout element, on purpose. The buttons
// of an edit range look for their pictures in the range's own element first, where none are.
std::vector<Line> linesOf(const std::string& keyword)
{
    const Line page{"ZELLabel", "[setLayout] page pLayout == NULL", 1};
    const Line up{"ZELImageButton", "[setLayout] upbtn pLayout == NULL", 1};
    const Line down{"ZELImageButton", "[setLayout] downbtn pLayout == NULL", 1};
    const std::map<std::string, std::vector<Line>> lines{
        {"textboard", {page, up, down}},
        {"list", {page, up, down}},
        {"listUnit", {page, up, down}},
        {"listscroll", {page, up, down}},
        {"range", {up, down}},
        {"editrange",
         {{"ZELImageEdit", "[setLayout] editor pLayout == NULL", 1},
          {"ZELImageMgr", "[getImage] No FileName Error", 4}}},
        {"roundprogress",
         {{"ZELImageBox", "[setLayout] image pLayout == NULL", 1},
          {"ZELImageBox", "[setLayout] round pLayout == NULL", 1}}},
    };
    const auto found = lines.find(keyword);
    return found == lines.end() ? std::vector<Line>() : found->second;
}

class Gallery : public PanelTest, public ::testing::WithParamInterface<Exhibit>
{
protected:
    Gallery()
    {
        // the gallery's own file system, before anything is asked for a resource
        qputenv("QTPANFX_SYSROOT", GALLERY_ROOTFS);
    }
};

std::string keywordOf(const ::testing::TestParamInfo<Exhibit>& info)
{
    return info.param.keyword;
}

} // namespace

TEST_P(Gallery, ShowsEachStateWithoutAFault)
{
    const Exhibit& exhibit = GetParam();
    for (const Scene& scene : exhibit.scenes) {
        Stage stage(exhibit.keyword, scene);
        EXPECT_GT(stage.place().width(), 0);
        EXPECT_EQ(stage.picture().size(), stage.place().size()) << scene.state;
    }
    const int pages = static_cast<int>(exhibit.scenes.size());
    expectBackgroundLines(pages);
    for (const Line& line : linesOf(exhibit.keyword))
        log().expectError(line.text, line.times * pages, line.className);
}

TEST_P(Gallery, ShowsEachStateAsAPictureOfItsOwn)
{
    std::vector<QImage> pictures;
    for (const Scene& scene : GetParam().scenes) {
        const QImage picture = Stage(GetParam().keyword, scene).picture();
        for (const QImage& other : pictures)
            EXPECT_TRUE(gallery::looksOtherwise(picture, other))
                << scene.state << " " << gallery::pixelsOff(picture, other);
        pictures.push_back(picture);
    }
    log().reset(); // the lines are the other test's matter
}

INSTANTIATE_TEST_SUITE_P(All, Gallery, ::testing::ValuesIn(allExhibits()), keywordOf);

TEST(GalleryRooms, HoldEveryKeywordOnce)
{
    namespace Components = PANFx::Components;
    std::vector<std::string> keywords;
    for (const auto* table :
         {&Components::componentTable(), &Components::buttonTable(), &Components::listTable()}) {
        for (const auto& entry : *table)
            keywords.emplace_back(entry.keyword);
    }
    std::vector<std::string> shown;
    for (const Exhibit& exhibit : allExhibits())
        shown.push_back(exhibit.keyword);
    std::sort(keywords.begin(), keywords.end());
    std::sort(shown.begin(), shown.end());
    EXPECT_EQ(shown, keywords);
}
