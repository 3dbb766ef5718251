#pragma once

#include <QImage>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWindow>

#include <string>

class InstrumentFrame;

namespace PANFx::Components {
class ZELComponent;
}

namespace PANFx::Windows {
class ZELPopupWindow;
}

/// The panel as a user has it: what is on it can be looked at and touched. Touches go to a place
/// of the window, and it is Qt that finds what lies there.
class Screen
{
public:
    explicit Screen(InstrumentFrame& frame);

    /// Id of the page, or "none".
    std::string page();

    /// Id of the dialog that lies over the page, or "".
    std::string dialog();

    /// The popup tag of that dialog, or "".
    std::string dialogTag();

    QImage picture();

    /// Whether a text is to be read anywhere on it.
    bool shows(const std::string& strText);

    /// A text that is wider than its place, or "".
    std::string cutText();

    /// Writes a text into a label.
    void write(const std::string& strLabel, const std::string& strText);

    /// Gives the window on top the keys, as a window system does once another one has closed.
    void activate();

    /// Puts the finger on the middle of a component of the dialog, or else of the page, also on a
    /// tab that is shown; one inside of others is called "group/component" or "list/row/cell".
    void press(const std::string& strID);
    void release();
    void tap(const std::string& strID);

    /// Touches the scroll bar of a text edit above what it shows.
    void tapScrollBar(const std::string& strID);

    /// Turns the clock of a component, or for "" of what is on top, on by so many ticks. They go
    /// the way of a real one: through its timer, which posts them. One that stands still has none.
    void tick(const std::string& strID, int nTicks);

    /// Sends keys as a scanner does that acts as a keyboard, the enter key at the end.
    void scan(const QString& strCode);

    /// Sends keys as an attached keyboard does; a line feed is the enter key.
    void type(const QString& strText);

    /// What a field holds, UTF-8; of a line edit what was typed or scanned into it. Also the title
    /// of a button, and the page and total of a page turner.
    std::string text(const std::string& strID);

    /// What a gauge or a range shows, the tab that is up, or how far a text edit is scrolled; -1
    /// for any other component.
    int number(const std::string& strID);

    /// Whether a component is to be seen.
    bool isVisible(const std::string& strID);

    /// Whether a component takes touches.
    bool isEnabled(const std::string& strID);

    /// Id of the first component that was asked for and not there, or "".
    const std::string& missing() const { return m_strMissing; }
    void forgetMissing() { m_strMissing.clear(); }

private:
    QWidget* top();
    PANFx::Windows::ZELPopupWindow* findDialog();
    PANFx::Components::ZELComponent* find(const std::string& strID);
    void press(QWidget& widget, const QPoint& place);
    void send(QEvent::Type type);

    InstrumentFrame& m_frame;
    QPointer<QWindow> m_window; ///< under the finger
    QPoint m_finger;
    std::string m_strMissing;
};
