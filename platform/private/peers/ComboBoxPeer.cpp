#include "platform/private/peers/ComboBoxPeer.h"

#include "platform/controls/ComboBox.h"
#include "platform/private/peers/Controls.h"
#include "platform/private/peers/EditText.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QWheelEvent>

#include <algorithm>
#include <memory>
#include <utility>

namespace platform {

namespace {

constexpr int closedHeight = 21; // pixels; what is left of the template's height is the list's

} // namespace

QVariant ComboBoxModel::data(const QModelIndex& index, int role) const {
    const bool text = role == Qt::DisplayRole || role == Qt::EditRole;
    return text && rows.Has(index.row()) ? ToQString(rows.At(index.row())) : QVariant();
}

void ComboBoxModel::Insert(int index, const CString& text) {
    beginInsertRows({}, index, index);
    rows.Insert(index, text);
    endInsertRows();
}

void ComboBoxModel::Clear() {
    beginResetModel();
    rows.Clear();
    endResetModel();
}

ComboBoxPeer::ComboBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : Hosted<QComboBox>(&parentPeer, parentPeer.Surface()) {
    ApplySpec(*this, spec);
    setModel(&m_model);
    setFocusPolicy(Qt::StrongFocus); // the wheel alone does not bring the focus
    setInsertPolicy(NoInsert);
    const int listHeight = spec.place.height() - closedHeight;
    resize(spec.place.width(), closedHeight);
    setMaxVisibleItems(std::max(5, listHeight / std::max(1, fontMetrics().height())));
    if ((spec.style & 3) != CBS_DROPDOWNLIST) {
        setEditable(true);
        setCompleter(nullptr);
        setValidator(new LineValidator(0, this));
        connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
            const QPointer<QWidget> alive = this;
            NotifyParent(CBN_EDITUPDATE);
            if (alive && !WindowPeer::destroyed)
                NotifyParent(CBN_EDITCHANGE);
        });
        setEditText(ToQString(spec.text));
    }
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (std::exchange(m_told, index) != index)
            NotifyParent(CBN_SELCHANGE);
    });
}

void ComboBoxPeer::SetText(const CString& text) {
    if (isEditable())
        setEditText(ToQString(text));
}

// While the list hangs down, Enter and Escape close it.
UINT ComboBoxPeer::DialogCode() const {
    return WantsArrows | WantsCharacters | (m_dropped ? UINT{WantsAllKeys} : 0u);
}

std::unique_ptr<CWnd> ComboBoxPeer::MakeObject() const {
    return std::make_unique<CComboBox>();
}

// The list that hangs down takes the focus and gives it back, which is nobody's business.
void ComboBoxPeer::FocusChanged(bool gained) {
    if (gained == m_focusTold || (!gained && m_dropped))
        return;
    m_focusTold = gained;
    NotifyParent(gained ? CBN_SETFOCUS : CBN_KILLFOCUS);
}

LRESULT ComboBoxPeer::DefaultMessage(UINT message, WPARAM wParam, LPARAM) {
    return PlayKey(*this, message, wParam);
}

int ComboBoxPeer::Add(const CString& text) {
    const auto textAt = [this](int row) -> const CString& { return TextOf(row); };
    const int index = WindowPeer::style & CBS_SORT ? SortedPlace(Count(), text, textAt) : Count();
    const bool none = currentIndex() < 0;
    const QString typed = currentText();
    m_model.Insert(index, text);
    if (none) { // the toolkit selects the first row that comes
        setCurrentIndex(-1);
        if (isEditable())
            setEditText(typed);
    }
    m_told = currentIndex();
    return index;
}

void ComboBoxPeer::Reset() {
    m_model.Clear();
    setCurrentIndex(-1);
    if (isEditable())
        clearEditText();
    m_told = -1;
}

int ComboBoxPeer::Find(int startAfter, const CString& prefix) const {
    return FindPrefix(Count(), startAfter, prefix, [this](int row) -> const CString& { return TextOf(row); });
}

int ComboBoxPeer::Selected() const {
    const int index = currentIndex();
    return isEditable() && index >= 0 && currentText() != itemText(index) ? CB_ERR : index;
}

void ComboBoxPeer::Select(int index) {
    setCurrentIndex(Has(index) ? index : -1);
    if (isEditable())
        setEditText(itemText(currentIndex())); // the selection may be the same under a text that was typed over it
    m_told = currentIndex();
}

void ComboBoxPeer::showPopup() {
    const QPointer<QWidget> alive = this;
    NotifyParent(CBN_DROPDOWN);
    if (!alive || WindowPeer::destroyed)
        return;
    m_dropped = true;
    QComboBox::showPopup();
    view()->window()->installEventFilter(this);
}

void ComboBoxPeer::hidePopup() {
    QComboBox::hidePopup();
    TellClosed();
}

// The toolkit closes the list by itself as well, on Escape. A handler may end the dialog: not in the middle of that.
bool ComboBoxPeer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide && m_dropped)
        QMetaObject::invokeMethod(
            this, [this] { TellClosed(); }, Qt::QueuedConnection);
    return Hosted<QComboBox>::eventFilter(watched, event);
}

// The toolkit also hides a list that is not shown.
void ComboBoxPeer::TellClosed() {
    if (std::exchange(m_dropped, false))
        NotifyParent(CBN_CLOSEUP);
}

void ComboBoxPeer::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

WindowPeer* CreateComboBox(const ControlSpec& spec, WindowPeer& parent) {
    return new ComboBoxPeer(spec, parent);
}

} // namespace platform
