#pragma once

#include "components/editors/ZELImageEdit.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"

#include <QPaintEvent>
#include <QString>

#include <functional>
#include <string>

namespace PANFx::Testing {

/** A value editor whose inside is open, as it is to an application's derived class. */
template <class Edit>
class OpenedEdit : public Edit
{
public:
    using Edit::Edit;

    using Edit::m_bDimMode;
    using Edit::m_nMaxLength;
    using Edit::m_strText;

    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        Edit::paintEvent(event);
    }
};

/** The fixture of the value editors. */
class EditorTest : public PanelTest
{
protected:
    /** An editor of a derived class on the panel, shown, in the style "normal". */
    template <class T>
    T* make(const std::string& type)
    {
        auto* const edit = new T(&panel(), "ok", type,
                                 element("<ok style='normal'>"
                                         "<position x='10' y='20' width='200' height='40'/></ok>"));
        edit->showWindow();
        EventLoop::deliver();
        return edit;
    }

    /** Whether the editor paints itself anew for what is done. */
    template <class T>
    static bool repaints(T* edit, const std::function<void()>& act)
    {
        EventLoop::deliver();
        edit->paints = 0;
        act();
        EventLoop::deliver();
        return edit->paints > 0;
    }
};

/** One key of the pad: digits come as strings, "." and "," as literals; both are one to a field. */
template <class Edit>
void press(Edit& edit, char key)
{
    const std::string text(1, key);
    if (key == '.' || key == ',')
        edit.addText(text.c_str());
    else
        edit.addText(text);
}

/** Keys one by one; "<" is the backspace, a blank is for the reader only. */
template <class Edit>
void type(Edit& edit, const std::string& keys)
{
    for (const char key : keys) {
        if (key == '<')
            edit.backspace();
        else if (key != ' ')
            press(edit, key);
    }
}

} // namespace PANFx::Testing
