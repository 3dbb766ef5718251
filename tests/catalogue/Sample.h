#pragma once

#include <string>
#include <vector>

namespace TAMFx::Common::Xml {
class Node;
class XmlDocument;
} // namespace TAMFx::Common::Xml

namespace PANFx::Testing {

/** An error line that a component writes without being at fault. */
struct SampleLine
{
    std::string className;
    std::string text; ///< what stands behind "[E] "
    int times = 1;    ///< `some` for one or more, as of a line that each paint writes

    static constexpr int some = -1;
};

/**
 * What tests/catalogue/layouts/<keyword>.xml says of a component:
 *
 *     <sample paints="yes" tap="1552" x="20" y="10">
 *       <full>   lines that the full layout below makes </full>
 *       <empty>  lines that an element without anything makes </empty>
 *       <null>   lines that a null element makes </null>
 *       <layout> the component's element, with all that it can say </layout>
 *     </sample>
 *
 * "paints" is whether the full layout shows something, "tap" the numbers of the events that its
 * parent gets for one touch, "x" and "y" where the touch goes (the middle otherwise). A line is
 * <line class="ZELTab" times="2">text</line>; "times" may be "some". In a line, the id of the
 * component without a layout is "it". Pictures that a layout may name: see SampleTest.
 */
struct Sample
{
    bool paints = true;
    std::vector<int> tap;
    int x = -1; ///< -1: the middle
    int y = -1;
    std::vector<SampleLine> full;
    std::vector<SampleLine> empty;
    std::vector<SampleLine> null;
    TAMFx::Common::Xml::Node* layout = nullptr; ///< the document's
};

/**
 * Reads a sample file into a sample.
 * @param document gets the file; it must outlive the sample
 * @return false, and a failed test that says why, for a file that is missing or wrong
 */
bool readSample(const std::string& keyword, TAMFx::Common::Xml::XmlDocument& document,
                Sample& sample);

} // namespace PANFx::Testing
