#pragma once

#include "tour/StepList.h"
#include "tour/TourPrinter.h"

#include <QString>

class InstrumentFrame;

/// The part of the tour on which reports are printed and a picture of the screen is taken. Papers
/// and picture go to the directory of the tour.
class PrintItinerary : private StepList
{
public:
    PrintItinerary(InstrumentFrame& frame, Screen& screen, const QString& strDir);

    /// Prints without a printer and without paper, cancels, prints, takes a picture. Begins on any
    /// page below the home page, ends on the results. The steps refer to the itinerary and must not
    /// outlive it.
    std::vector<TourStep> steps();

    /// Prints in a language that is in force then; begins on any page, ends on the results.
    std::vector<TourStep> inLanguage(const std::string& strName, const std::string& strLocale);

    /// A look at the dialogs of printing and of a picture in the language that is in force, from
    /// the page of the readings on, to which it returns.
    std::vector<TourStep> looksIn(const std::string& strName, const std::string& strLocale);

private:
    void failures();
    void cancelled();
    void printed(const std::string& strPrefix, const std::string& strPaper);
    void picture();

    Action plugIn(const PrinterEmulator::Behaviour& behaviour);

    /// Pulls the printer off, keeps its paper under that name, and closes the dialog. `m_bKept`
    /// tells whether the paper could be kept.
    Actions tearOff(const std::string& strPaper);

    /// What the popup tag of the dialog must be, in time for a whole report.
    void claimTag(TourStep& step, const std::string& strClaim, const std::string& strTag);

    /// Whether the dialog has room for all that it can tell. Afterwards it tells the last of it.
    bool fitsAll();

    std::size_t selected();
    int reportRows();
    bool isWholeReport();
    bool isPictureOfScreen();
    void removePicture();

    InstrumentFrame& m_frame;
    QString m_strDir;
    TourPrinter m_printer;
    bool m_bKept = false; ///< the picture of the last paper is written
};
