#pragma once

#include <QString>
#include <QtGlobal>

// The scenario screen's choices: which of its two views is open, whether a typed name can be
// created, and the list of scenario names behind the seven name rows: which name is chosen,
// which row shows it, and what the rows must be told when the choice moves or a name goes. No
// widgets: each operation changes the model and answers with the changes for the screen to
// carry out.
//
// Row r shows the name at firstShown() + r for r below shownRows(); the chosen name is in row
// indexShow, the only row with the highlight bar. Every operation keeps the rows within the
// list, and ignores a model that is not (fields are public, so anybody may have set them).
class ScenarioList {
public:
    static constexpr qint32 kSlots = 20;
    static constexpr qint32 kRows = 7;

    // What the rows must do, in this order: hide the list (it is empty now), hide one row,
    // move the highlight bar, re-caption a range of rows.
    struct RowChange {
        bool listEmptied = false;
        qint32 hideRow = -1;
        // Row that gets the highlight bar; rows 0 to shownRows() - 1 other than it get no
        // pictures. -1: the pictures stay.
        qint32 markRow = -1;
        // Rows captionFrom to captionTo - 1 show the name at firstShown() + r.
        qint32 captionFrom = 0;
        qint32 captionTo = 0;

        bool isNothing() const {
            return !listEmptied && hideRow < 0 && markRow < 0 && captionFrom >= captionTo;
        }
        friend bool operator==(const RowChange&, const RowChange&) = default;
    };

    // The view open beside the two actions; leaving the screen closes it.
    enum class Page { Choice, Create, List };

    void CreateAction() { page = Page::Create; }
    void ModifyAction() { page = Page::List; }
    void Leave() { page = Page::Choice; }
    // "Create" takes any name of at least one character; answers whether it is enabled now.
    bool NameChanged(const QString& text);
    // "Modify exist scenario" leads nowhere once the list is empty.
    bool canModify() const { return numOfList > 0; }

    // The twenty names "0" to "19", the first one chosen in row 0.
    void Fill();

    qint32 shownRows() const { return qBound(0, numOfList, kRows); }
    qint32 firstShown() const { return indexChoose - indexShow; }
    // The name in a slot; a null text for a slot outside the array.
    QString name(qint32 index) const;
    bool isConsistent() const;

    RowChange ChooseRow(qint32 row);
    RowChange Up();
    RowChange Down();
    RowChange Remove();

    Page page = Page::Choice;
    bool bCreateEnabled = false;
    qint32 indexChoose = 0;
    qint32 indexShow = 0;
    qint32 numOfList = 0;
    QString txtLoadScenarioName[kSlots];
};
