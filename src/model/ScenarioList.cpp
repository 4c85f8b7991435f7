#include "ScenarioList.h"

ScenarioList::ScenarioList(QObject* parent) : QObject(parent) {
    for (qint32 i = 0; i < kSlots; ++i) txtLoadScenarioName[i] = QString::number(i);
}

void ScenarioList::OpenPage(Page page) {
    if (m_page == page) return;
    m_page = page;
    emit changed();
}

void ScenarioList::NameChanged(const QString& text) {
    if (m_typedName == text) return;
    m_typedName = text;
    emit changed();
}

QString ScenarioList::name(qint32 index) const {
    if (index < 0 || index >= kSlots) return {};
    return txtLoadScenarioName[index];
}

void ScenarioList::ChooseRow(qint32 row) {
    if (row < 0 || row >= shownRows()) return;
    m_indexChoose += row - m_indexShow;
    m_indexShow = row;
    // Pressing the chosen row again marks it again.
    emit changed();
}

void ScenarioList::Up() {
    if (m_numOfList == 0 || m_indexChoose == 0) return;
    --m_indexChoose;
    // From the top row the list scrolls back by one name.
    m_indexShow = qMax(m_indexShow - 1, 0);
    emit changed();
}

void ScenarioList::Down() {
    if (m_indexChoose >= m_numOfList - 1) return;
    ++m_indexChoose;
    // From the last row a list longer than the rows scrolls; a shorter one ends in its last row.
    m_indexShow = qMin(m_indexShow + 1, shownRows() - 1);
    emit changed();
}

void ScenarioList::Remove() {
    if (m_numOfList == 0) return;
    for (qint32 i = m_indexChoose + 1; i < m_numOfList; ++i)
        txtLoadScenarioName[i - 1] = txtLoadScenarioName[i];
    // The last slot keeps its old text: it now lies beyond the list.
    const qint32 n = --m_numOfList;
    if (n == 0) {
        if (m_page == Page::List) m_page = Page::Choice;
    } else if (n >= kRows) {
        const qint32 first = firstShown();
        // When the removed name was the last, the new last name is chosen; the rows would reach
        // past the end of the list when they showed its end, so the first shown name moves up by
        // one. Otherwise the name that followed the removed one moves up into the chosen row.
        if (m_indexChoose >= n) m_indexChoose = n - 1;
        if (first + kRows > n) m_indexShow = m_indexChoose - (n - kRows);
    } else if (m_indexChoose < n) {
        // The whole list fits in the rows, starting with row 0.
        m_indexShow = m_indexChoose;
    } else {
        // The removed name was the last: the new last name, one row up, is chosen.
        m_indexChoose = --m_indexShow;
    }
    emit changed();
}
