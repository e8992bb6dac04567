#include "host/ui/AssignDialogs.h"

#include "platform/Application.h"
#include "platform/private/WindowPeer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>
#include <functional>

namespace {

// A titled dialog with rows above OK and Annulla.
class Form final : public QDialog {
  public:
    Form(QWidget& parent, const QString& title) : QDialog(&parent) {
        setWindowTitle(title);
        auto* all = new QVBoxLayout(this);
        m_content = new QVBoxLayout;
        all->addLayout(m_content);
        auto* buttons = new QDialogButtonBox;
        buttons->addButton("OK", QDialogButtonBox::AcceptRole)->setDefault(true);
        buttons->addButton("Annulla", QDialogButtonBox::RejectRole);
        all->addWidget(buttons);
        all->setSizeConstraint(QLayout::SetFixedSize);
        QObject::connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
        QObject::connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
    }

    QVBoxLayout& Content() { return *m_content; }
    // Answers whether what was entered can be used, after telling the user why not.
    void SetCheck(std::function<bool()> check) { m_check = std::move(check); }
    bool Ask() { return exec() == Accepted; }

    void accept() override {
        if (!m_check || m_check())
            QDialog::accept();
    }

  private:
    QVBoxLayout* m_content;
    std::function<bool()> m_check;
};

QCheckBox* checkBox(const QString& name, const QString& text, bool checked) {
    auto* box = new QCheckBox(text);
    box->setObjectName(name);
    box->setChecked(checked);
    return box;
}

// The decimal separator is the full stop, as everywhere in the application.
QLineEdit* numberField(const QString& name, double value) {
    auto* edit = new QLineEdit(QString::number(value, 'g', 15));
    edit->setObjectName(name);
    edit->setMaximumWidth(140);
    return edit;
}

bool refuse(QLineEdit& edit, const CString& message) {
    AfxMessageBox(message);
    edit.setFocus();
    edit.selectAll();
    return false;
}

bool readNumber(QLineEdit& edit, double& value) {
    bool ok = false;
    value = edit.text().trimmed().toDouble(&ok);
    return (ok && std::isfinite(value)) || refuse(edit, "Immettere un numero.");
}

class SpringForm {
  public:
    SpringForm(QWidget& parent, const CMolla& present, Lunghezza length, Forza force)
        : m_form(parent, "Molla"), m_length(length), m_force(force) {
        m_kind->setObjectName("tipo");
        m_kind->addItems({"Traslazionale", "Rotazionale", "Nessuna (togli le molle)"});
        m_stiffness = numberField("rigidezza", present.GetRigidezza().GetValore());
        const CFPoint& d = present.GetDirezione();
        m_direction[0] = numberField("x", d.x);
        m_direction[1] = numberField("y", d.y);
        m_direction[2] = numberField("z", d.z);
        auto* rows = new QFormLayout;
        rows->addRow("Tipo:", m_kind);
        rows->addRow(m_stiffnessLabel, m_stiffness);
        const char* const axes[] = {"Direzione X:", "Direzione Y:", "Direzione Z:"};
        for (int i = 0; i < 3; ++i)
            rows->addRow(axes[i], m_direction[i]);
        m_form.Content().addLayout(rows);
        m_keep = checkBox("mantieni", QStringLiteral("Mantieni le molle esistenti"), false);
        m_form.Content().addWidget(m_keep);
        QObject::connect(m_kind, &QComboBox::currentIndexChanged, &m_form, [this] { FollowKind(); });
        m_kind->setCurrentIndex(present.GetTipo() == CMolla::Rotazionale ? rotational : translational);
        FollowKind();
        m_form.SetCheck([this] { return Read(); });
    }

    std::optional<SpringChoice> Ask() { return m_form.Ask() ? std::optional(m_choice) : std::nullopt; }

  private:
    enum Row { translational, rotational, none };

    void FollowKind() {
        const int row = m_kind->currentIndex();
        m_stiffness->setEnabled(row != none);
        m_keep->setEnabled(row != none);
        for (QLineEdit* edit : m_direction)
            edit->setEnabled(row != none);
        const CMolla sample(row == rotational ? CMolla::Rotazionale : CMolla::Traslazionale, 0, {}, m_length, m_force);
        m_stiffnessLabel->setText(
            QStringLiteral("Rigidezza (%1):").arg(platform::toQString(sample.GetRigidezza().GetStringUnita())));
    }

    bool Read() {
        m_choice = {};
        if (m_kind->currentIndex() == none)
            return true;
        double stiffness, d[3];
        if (!readNumber(*m_stiffness, stiffness))
            return false;
        if (stiffness < 0)
            return refuse(*m_stiffness, "La rigidezza non può essere negativa."_t);
        for (int i = 0; i < 3; ++i)
            if (!readNumber(*m_direction[i], d[i]))
                return false;
        if (d[0] == 0 && d[1] == 0 && d[2] == 0)
            return refuse(*m_direction[0], "La direzione non può essere nulla."_t);
        m_choice.spring.emplace(m_kind->currentIndex() == rotational ? CMolla::Rotazionale : CMolla::Traslazionale,
                                stiffness, CFPoint(d[0], d[1], d[2]), m_length, m_force);
        m_choice.keep = m_keep->isChecked();
        return true;
    }

    Form m_form;
    Lunghezza m_length;
    Forza m_force;
    SpringChoice m_choice;
    // The form's, like everything below.
    QComboBox* m_kind = new QComboBox;
    QLabel* m_stiffnessLabel = new QLabel;
    QLineEdit* m_stiffness = nullptr;
    QLineEdit* m_direction[3] = {};
    QCheckBox* m_keep = nullptr;
};

} // namespace

std::optional<CVincolo> AskRestraint(QWidget& parent, const CVincolo& present) {
    constexpr int components = 6;
    const char* const names[components] = {"Traslazione X", "Traslazione Y", "Traslazione Z",
                                           "Rotazione X",   "Rotazione Y",   "Rotazione Z"};
    Form form(parent, "Vincolo");
    auto* grid = new QGridLayout;
    QCheckBox* boxes[components];
    for (int i = 0; i < components; ++i) {
        boxes[i] = checkBox(names[i], names[i], present.IsFisso(i));
        grid->addWidget(boxes[i], i % 3, i / 3);
    }
    form.Content().addWidget(new QLabel("Componenti bloccate:"));
    form.Content().addLayout(grid);
    if (!form.Ask())
        return std::nullopt;
    CVincolo chosen;
    for (int i = 0; i < components; ++i)
        chosen.SetFisso(i, boxes[i]->isChecked());
    return chosen;
}

std::optional<SpringChoice> AskSpring(QWidget& parent, const CMolla& present, Lunghezza length, Forza force) {
    return SpringForm(parent, present, length, force).Ask();
}

std::optional<EndReleases> AskReleases(QWidget& parent, const EndReleases& present) {
    const char* const names[] = {"N", "T", "M2", "M3"};
    const char* const ends[] = {"Estremo iniziale", "Estremo finale"};
    Form form(parent, "Svincoli");
    auto* grid = new QGridLayout;
    QCheckBox* boxes[2][4];
    for (int end = 0; end < 2; ++end) {
        grid->addWidget(new QLabel(ends[end]), end, 0);
        for (int i = 0; i < 4; ++i) {
            boxes[end][i] =
                checkBox(QStringLiteral("%1%2").arg(names[i]).arg(end + 1), names[i], present.released[end][i]);
            grid->addWidget(boxes[end][i], end, i + 1);
        }
    }
    form.Content().addWidget(new QLabel("Sforzi non trasmessi al nodo:"));
    form.Content().addLayout(grid);
    if (!form.Ask())
        return std::nullopt;
    EndReleases chosen;
    for (int end = 0; end < 2; ++end)
        for (int i = 0; i < 4; ++i)
            chosen.released[end][i] = boxes[end][i]->isChecked();
    return chosen;
}
