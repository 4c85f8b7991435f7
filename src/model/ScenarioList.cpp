#include "ScenarioList.h"

void ScenarioList::Fill() {
    indexChoose = 0;
    indexShow = 0;
    for (qint32 i = 0; i < kSlots; ++i) txtLoadScenarioName[i] = QString::number(i);
    numOfList = kSlots;
}

bool ScenarioList::NameChanged(const QString& text) {
    bCreateEnabled = !text.isEmpty();
    return bCreateEnabled;
}

QString ScenarioList::name(qint32 index) const {
    if (index < 0 || index >= kSlots) return {};
    return txtLoadScenarioName[index];
}

bool ScenarioList::isConsistent() const {
    if (numOfList < 1 || numOfList > kSlots) return false;
    const qint32 rows = shownRows();
    return indexChoose >= 0 && indexChoose < numOfList && indexShow >= 0 && indexShow < rows &&
           firstShown() >= 0 && firstShown() + rows <= numOfList;
}

ScenarioList::RowChange ScenarioList::ChooseRow(qint32 row) {
    if (!isConsistent() || row < 0 || row >= shownRows()) return {};
    indexChoose += row - indexShow;
    indexShow = row;
    return {.markRow = row};
}

ScenarioList::RowChange ScenarioList::Up() {
    if (!isConsistent()) return {};
    --indexShow;
    if (indexChoose == 0) {
        indexShow = 0;
        return {};
    }
    --indexChoose;
    if (indexShow > 0) return {.markRow = indexShow};
    // From the top row the list scrolls back by one name; from row 1 the captions are written
    // again as they were.
    indexShow = 0;
    return {.markRow = 0, .captionFrom = 0, .captionTo = shownRows()};
}

ScenarioList::RowChange ScenarioList::Down() {
    if (!isConsistent()) return {};
    const qint32 rows = shownRows();
    ++indexShow;
    ++indexChoose;
    if (indexChoose == numOfList) {
        indexShow = rows - 1;
        indexChoose = numOfList - 1;
        return {};
    }
    if (indexShow < rows - 1) return {.markRow = indexShow};
    indexShow = rows - 1;
    // Only a list longer than the rows can scroll; a shorter one ends in the last row.
    if (numOfList > kRows) return {.markRow = rows - 1, .captionFrom = 0, .captionTo = kRows};
    return {.markRow = rows - 1};
}

ScenarioList::RowChange ScenarioList::Remove() {
    if (!isConsistent()) return {};
    const qint32 before = numOfList;
    for (qint32 i = indexChoose + 1; i < before; ++i) txtLoadScenarioName[i - 1] = txtLoadScenarioName[i];
    // The last slot keeps its old text: it now lies beyond the list.
    const qint32 n = before - 1;
    numOfList = n;

    if (n == 0) {
        if (page == Page::List) page = Page::Choice;
        return {.listEmptied = true};
    }

    if (n >= kRows) {
        qint32 first = firstShown();
        const qint32 row = indexShow;
        // The rows would reach past the end of the list when they showed its end: the first
        // shown name moves up by one, and all rows are captioned again. When the removed name
        // was the last, the new last name is chosen.
        if (indexChoose >= n) indexChoose = n - 1;
        if (first + kRows > n) {
            first = n - kRows;
            indexShow = indexChoose - first;
            return {.markRow = indexShow, .captionFrom = 0, .captionTo = kRows};
        }
        // The name that followed the removed one moves up into the chosen row.
        return {.markRow = row, .captionFrom = row, .captionTo = kRows};
    }

    // The whole list fits in the rows, starting with row 0.
    if (indexChoose < n) {
        indexShow = indexChoose;
        return {.hideRow = n, .markRow = indexChoose, .captionFrom = indexChoose, .captionTo = n};
    }
    // The removed name was the last: the new last name, one row up, is chosen.
    const qint32 vacated = indexChoose;
    --indexShow;
    indexChoose = indexShow;
    return {.hideRow = vacated, .markRow = vacated - 1};
}
