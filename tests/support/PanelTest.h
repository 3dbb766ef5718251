#pragma once

#include "support/EventRecorder.h"
#include "support/LogCapture.h"

#include <QColor>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

namespace PANFx::Components {
class ZELComponent;
}
namespace TAMFx::Common::Xml {
class Node;
class XmlDocument;
} // namespace TAMFx::Common::Xml

namespace PANFx::Testing {

class FrameForTest;

/**
 * The fixture of every test that needs the panel: an instrument's file system of its own in a
 * temporary directory, a widget that stands where a page stands, and the log.
 *
 * The file system starts with a configuration (default language, resources where they always
 * are) and a style file with the styles "normal" (black), "pressed" (red) and "dimmed" (grey) in
 * a fixed font; a string table with no entry. A test writes over what it wants otherwise, before
 * it first asks for a resource. Afterwards the singletons are destroyed and the directory goes.
 */
class PanelTest : public ::testing::Test
{
protected:
    PanelTest();
    ~PanelTest() override;

    // ---- the instrument's file system; paths are the instrument's own: "/data/db/OSKDB.db"

    void writeFile(const std::string& path, const std::string& bytes);
    std::string readFile(const std::string& path) const;
    bool fileExists(const std::string& path) const;
    void removeFile(const std::string& path);

    /** Where a path of the instrument really lies. */
    std::string realPath(const std::string& path) const;

    /** The resource directory as the library names it, with its trailing slash. */
    static const std::string resources;

    /** The layout file of a page, below the directory of the language. */
    void writeLayout(const std::string& name, const std::string& xml,
                     const std::string& locale = "");
    void writeStyle(const std::string& xml, const std::string& locale = "");
    void writeStrings(const std::string& xml);
    /** A PNG of one colour. */
    void writePicture(const std::string& name, int width, int height, const QColor& colour,
                      const std::string& locale = "");
    /** A PNG of the image. */
    void writePicture(const std::string& name, const QImage& image, const std::string& locale = "");
    void writeConfig(const std::string& language, const std::string& resourcePath);

    // ---- building

    /** The widget that stands for the page; shown, so that what is on it can be painted. */
    EventRecorder& panel();

    /** An element for a component's constructor; it lives until the test is over. */
    TAMFx::Common::Xml::Node* element(const std::string& xml);

    /**
     * Builds one component from its element, as a page would, and shows it.
     * @param keyword the type keyword of layout files: "button"
     * @param xml the component's element; its name is the id: "<ok><position .../></ok>"
     * @param parent the parent widget; the panel unless told otherwise
     * @return the component, owned by the parent; null, and a failed test, for a wrong keyword or
     *         class
     */
    template <class T>
    T* buildComponent(const std::string& keyword, const std::string& xml, QWidget* parent = nullptr)
    {
        return as<T>(build(keyword, xml, parent), keyword);
    }

    /**
     * Builds one component through a layout file and a page of the frame, which is moved to it.
     * The frame's recorder listens at the page.
     */
    template <class T>
    T* buildOnPage(const std::string& keyword, const std::string& xml)
    {
        return as<T>(buildOnPage(keyword, xml), keyword);
    }

    /** A frame, made and shown at the first call. */
    FrameForTest& frame();

    // ---- the log

    LogCapture& log() { return LogCapture::instance(); }

    /** A page without a background asks the image manager for a picture without a name. */
    void expectNoBackgroundLines(int pages = 1);

    /** The background box of a page is made without a layout element, on purpose. */
    void expectBackgroundLines(int pages = 1);

    /** A component made with a null element says so and keeps its defaults. */
    void expectNullLayoutLines(const std::string& id, int times = 1);

private:
    Components::ZELComponent* build(const std::string& keyword, const std::string& xml,
                                    QWidget* parent);
    Components::ZELComponent* buildOnPage(const std::string& keyword, const std::string& xml);

    template <class T>
    static T* as(Components::ZELComponent* component, const std::string& keyword)
    {
        T* const wanted = dynamic_cast<T*>(component);
        if (component && !wanted)
            ADD_FAILURE() << "\"" << keyword << "\" makes another class than " << typeid(T).name();
        return wanted;
    }

    QTemporaryDir m_root;
    int m_built = 0;
    std::vector<std::unique_ptr<TAMFx::Common::Xml::XmlDocument>> m_documents;
    std::unique_ptr<EventRecorder> m_panel;
    std::unique_ptr<FrameForTest> m_frame;
};

} // namespace PANFx::Testing
