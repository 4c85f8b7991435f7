#pragma once

#include <QObject>
#include <QString>

// The scenario screen's choices: which of its two views is open, the name typed for a new
// scenario, and the list of scenario names behind the seven name rows: which name is chosen and
// which row shows it. Row r shows the name at firstShown() + r for r below shownRows(); the
// chosen name is in row indexShow(), the only row with the highlight bar. Every operation keeps
// the rows within the list; `changed` follows every one that took effect.
class ScenarioList : public QObject {
    Q_OBJECT
public:
    static constexpr qint32 kSlots = 20;
    static constexpr qint32 kRows = 7;

    // The view open beside the two actions; leaving the screen closes it.
    enum class Page { Choice, Create, List };

    // The twenty names "0" to "19", the first one chosen in row 0.
    explicit ScenarioList(QObject* parent = nullptr);

    void CreateAction() { OpenPage(Page::Create); }
    void ModifyAction() { OpenPage(Page::List); }
    void Leave() { OpenPage(Page::Choice); }
    void NameChanged(const QString& text);
    // A row pressed: its name is chosen. Rows that show no name are ignored.
    void ChooseRow(qint32 row);
    void Up();
    void Down();
    void Remove();

    Page page() const { return m_page; }
    // "Create" takes any name of at least one character.
    bool bCreateEnabled() const { return !m_typedName.isEmpty(); }
    // "Modify exist scenario" leads nowhere once the list is empty.
    bool canModify() const { return m_numOfList > 0; }
    qint32 indexChoose() const { return m_indexChoose; }
    qint32 indexShow() const { return m_indexShow; }
    qint32 numOfList() const { return m_numOfList; }
    qint32 shownRows() const { return qBound(0, m_numOfList, kRows); }
    qint32 firstShown() const { return m_indexChoose - m_indexShow; }
    // The name in a slot; a null text for a slot outside the array.
    QString name(qint32 index) const;

signals:
    void changed();

private:
    void OpenPage(Page page);

    Page m_page = Page::Choice;
    QString m_typedName;
    qint32 m_indexChoose = 0;
    qint32 m_indexShow = 0;
    qint32 m_numOfList = kSlots;
    QString txtLoadScenarioName[kSlots];
};
