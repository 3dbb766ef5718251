#pragma once

#include "dialogs/InstrumentDialog.h"

/// A question that waits for yes or no; run it with exec().
class QuestionDialog : public InstrumentDialog
{
public:
    enum Result { no, yes };

    /// Both texts are keys of the string table, or texts that are shown as they stand. The layout
    /// is "question", or another one with the same parts.
    QuestionDialog(InstrumentFrame* pFrame, const std::string& strTitle, const std::string& strNote,
                   const std::string& strLayout = "question");

protected:
    bool event(QEvent* pEvent) override;
};
