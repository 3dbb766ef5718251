#pragma once

#include <QString>

#include <functional>
#include <string>
#include <vector>

class InstrumentFrame;
class QImage;

/// Walks through the instrument as a user does, by touches, and keeps a picture of every screen.
class Tour
{
public:
    /// The pictures go to `strDir`, which is made when it is missing.
    Tour(InstrumentFrame& frame, const QString& strDir);

    /// True if every step came to its page, in its language, and left a picture with something on
    /// it.
    bool run();

private:
    struct Step
    {
        std::string strName;
        std::function<void()> action;
        std::string strPage;   ///< must be on screen after the action
        std::string strLocale; ///< must be in force after the action
    };

    std::vector<Step> steps();
    bool runStep(int nStep, const Step& step);

    /// What is wrong after a step, or "".
    std::string fault(const Step& step, const QImage& image);

    std::string pageOnScreen();

    /// Presses and releases the component of that id on the page that is on screen.
    void touch(const std::string& strID);

    /// Touches a tile of the first page, from whichever page is on screen.
    void visit(const std::string& strTile);
    void chooseLanguage(const std::string& strTile);

    InstrumentFrame& m_frame;
    QString m_strDir;
};
