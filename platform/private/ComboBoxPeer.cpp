#include "platform/private/ComboBoxPeer.h"

#include "platform/ComboBox.h"
#include "platform/private/Controls.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QWheelEvent>

#include <algorithm>

namespace platform {

namespace {

constexpr int ClosedHeight = 21; // pixels; what is left of the template's height is the list's

} // namespace

ComboBoxPeer::ComboBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : Hosted<QComboBox>(&parentPeer, parentPeer.surface()) {
    applySpec(*this, spec);
    setFocusPolicy(Qt::StrongFocus); // the wheel alone does not bring the focus
    setInsertPolicy(NoInsert);
    const int listHeight = spec.place.height() - ClosedHeight;
    resize(spec.place.width(), ClosedHeight);
    setMaxVisibleItems(std::max(5, listHeight / std::max(1, fontMetrics().height())));
    if ((spec.style & 3) != CBS_DROPDOWNLIST) {
        setEditable(true);
        setCompleter(nullptr);
        connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
            const QPointer<QWidget> alive = this;
            notifyParent(CBN_EDITUPDATE);
            if (alive && !WindowPeer::destroyed)
                notifyParent(CBN_EDITCHANGE);
        });
        setEditText(toQString(spec.text));
    }
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (std::exchange(m_told, index) != index)
            notifyParent(CBN_SELCHANGE);
    });
}

void ComboBoxPeer::setText(const CString& text) {
    if (isEditable())
        setEditText(toQString(text));
}

// While the list hangs down, Enter and Escape close it.
UINT ComboBoxPeer::dialogCode() const {
    return WantsArrows | WantsCharacters | (m_dropped ? UINT{WantsAllKeys} : 0u);
}

std::unique_ptr<CWnd> ComboBoxPeer::makeObject() const {
    return std::make_unique<CComboBox>();
}

// The list that hangs down takes the focus and gives it back, which is nobody's business.
void ComboBoxPeer::focusChanged(bool gained) {
    if (gained == m_focusTold || (!gained && m_dropped))
        return;
    m_focusTold = gained;
    notifyParent(gained ? CBN_SETFOCUS : CBN_KILLFOCUS);
}

LRESULT ComboBoxPeer::defaultMessage(UINT message, WPARAM wParam, LPARAM) {
    return playKey(*this, message, wParam);
}

int ComboBoxPeer::add(const CString& text) {
    if (!(WindowPeer::style & CBS_SORT))
        return insert(-1, text);
    int place = count();
    while (place > 0 && compareNoCase(text.View(), fromQString(itemText(place - 1)).View()) < 0)
        --place;
    return insert(place, text);
}

int ComboBoxPeer::insert(int index, const CString& text) {
    if (index < -1 || index > count())
        return CB_ERR;
    if (index < 0)
        index = count();
    const bool none = currentIndex() < 0;
    const QString typed = currentText();
    insertItem(index, toQString(text), QVariant::fromValue<qulonglong>(0));
    if (none) { // the toolkit selects the first row that comes
        setCurrentIndex(-1);
        if (isEditable())
            setEditText(typed);
    }
    m_told = currentIndex();
    return index;
}

bool ComboBoxPeer::remove(int index) {
    if (!has(index))
        return false;
    const bool wasSelected = index == currentIndex();
    removeItem(index);
    if (wasSelected)
        setCurrentIndex(-1);
    m_told = currentIndex();
    return true;
}

void ComboBoxPeer::reset() {
    clear();
    m_told = -1;
}

int ComboBoxPeer::find(int startAfter, const CString& text, bool whole) const {
    const int start = has(startAfter) ? startAfter : -1;
    for (int step = 1; step <= count(); ++step) {
        const int index = (start + step) % count();
        const CString candidate = fromQString(itemText(index));
        if (compareNoCase(whole ? candidate.View() : candidate.View().substr(0, text.View().size()), text.View()) == 0)
            return index;
    }
    return CB_ERR;
}

int ComboBoxPeer::selected() const {
    const int index = currentIndex();
    return isEditable() && index >= 0 && currentText() != itemText(index) ? CB_ERR : index;
}

void ComboBoxPeer::select(int index) {
    setCurrentIndex(has(index) ? index : -1);
    if (isEditable())
        setEditText(itemText(currentIndex())); // the selection may be the same under a text that was typed over it
    m_told = currentIndex();
}

void ComboBoxPeer::showPopup() {
    const QPointer<QWidget> alive = this;
    notifyParent(CBN_DROPDOWN);
    if (!alive || WindowPeer::destroyed)
        return;
    m_dropped = true;
    QComboBox::showPopup();
}

// The toolkit also hides a list that is not shown.
void ComboBoxPeer::hidePopup() {
    QComboBox::hidePopup();
    if (std::exchange(m_dropped, false))
        notifyParent(CBN_CLOSEUP);
}

void ComboBoxPeer::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

WindowPeer* createComboBox(const ControlSpec& spec, WindowPeer& parent) {
    return new ComboBoxPeer(spec, parent);
}

} // namespace platform
