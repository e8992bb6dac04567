#include "host/commands/AssignDialogs.h"

#include "host/commands/AssignForm.h"
#include "platform/toolkit/Bridge.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace host {

namespace {

QCheckBox* CheckBox(const QString& name, const QString& text, bool checked) {
    auto* box = new QCheckBox(text);
    box->setObjectName(name);
    box->setChecked(checked);
    return box;
}

class SpringForm {
  public:
    SpringForm(QWidget& parent, const CMolla& present, Lunghezza length, Forza force)
        : m_form(parent, "Molla"), m_length(length), m_force(force) {
        m_kind->setObjectName("tipo");
        m_kind->addItems({"Traslazionale", "Rotazionale", "Nessuna (togli le molle)"});
        m_stiffness = NumberField("rigidezza", present.GetStiffness().GetValue());
        const CFPoint& d = present.GetDirection();
        m_direction[0] = NumberField("x", d.x);
        m_direction[1] = NumberField("y", d.y);
        m_direction[2] = NumberField("z", d.z);
        auto* rows = new QFormLayout;
        rows->addRow("Tipo:", m_kind);
        rows->addRow(m_stiffnessLabel, m_stiffness);
        const char* const axes[] = {"Direzione X:", "Direzione Y:", "Direzione Z:"};
        for (int i = 0; i < 3; ++i)
            rows->addRow(axes[i], m_direction[i]);
        m_form.Content().addLayout(rows);
        m_keep = CheckBox("mantieni", QStringLiteral("Mantieni le molle esistenti"), false);
        m_form.Content().addWidget(m_keep);
        QObject::connect(m_kind, &QComboBox::currentIndexChanged, &m_form, [this] { FollowKind(); });
        m_kind->setCurrentIndex(present.GetTipo() == CMolla::Rotational ? rotational : translational);
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
        const CMolla sample(row == rotational ? CMolla::Rotational : CMolla::Translational, 0, {}, m_length, m_force);
        m_stiffnessLabel->setText(
            QStringLiteral("Rigidezza (%1):").arg(platform::ToQString(sample.GetStiffness().GetUnitText())));
    }

    bool Read() {
        m_choice = {};
        if (m_kind->currentIndex() == none)
            return true;
        double stiffness, d[3];
        if (!ReadNumber(*m_stiffness, stiffness))
            return false;
        if (stiffness < 0)
            return RefuseField(*m_stiffness, "La rigidezza non può essere negativa."_t);
        for (int i = 0; i < 3; ++i)
            if (!ReadNumber(*m_direction[i], d[i]))
                return false;
        if (d[0] == 0 && d[1] == 0 && d[2] == 0)
            return RefuseField(*m_direction[0], "La direzione non può essere nulla."_t);
        m_choice.spring.emplace(m_kind->currentIndex() == rotational ? CMolla::Rotational : CMolla::Translational,
                                stiffness, CFPoint(d[0], d[1], d[2]), m_length, m_force);
        m_choice.keep = m_keep->isChecked();
        return true;
    }

    AssignForm m_form;
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
    AssignForm form(parent, "Vincolo");
    auto* grid = new QGridLayout;
    QCheckBox* boxes[components];
    for (int i = 0; i < components; ++i) {
        boxes[i] = CheckBox(names[i], names[i], present.IsFixed(i));
        grid->addWidget(boxes[i], i % 3, i / 3);
    }
    form.Content().addWidget(new QLabel("Componenti bloccate:"));
    form.Content().addLayout(grid);
    auto* ready = new QHBoxLayout;
    for (const Support& support : Supports()) {
        auto* button = new QPushButton(support.caption);
        button->setObjectName(support.name);
        button->setToolTip(support.hint);
        QObject::connect(button, &QPushButton::clicked, &form, [&boxes, fixed = CVincolo(support.fixed)] {
            for (int i = 0; i < components; ++i)
                boxes[i]->setChecked(fixed.IsFixed(i));
        });
        ready->addWidget(button);
    }
    form.Content().addLayout(ready);
    if (!form.Ask())
        return std::nullopt;
    CVincolo chosen;
    for (int i = 0; i < components; ++i)
        chosen.SetFixed(i, boxes[i]->isChecked());
    return chosen;
}

std::optional<SpringChoice> AskSpring(QWidget& parent, const CMolla& present, Lunghezza length, Forza force) {
    return SpringForm(parent, present, length, force).Ask();
}

std::optional<EndReleases> AskReleases(QWidget& parent, const EndReleases& present) {
    const char* const names[] = {"N", "T", "M2", "M3"};
    const char* const ends[] = {"Estremo iniziale", "Estremo finale"};
    AssignForm form(parent, "Svincoli");
    auto* grid = new QGridLayout;
    QCheckBox* boxes[2][4];
    for (int end = 0; end < 2; ++end) {
        grid->addWidget(new QLabel(ends[end]), end, 0);
        for (int i = 0; i < 4; ++i) {
            boxes[end][i] =
                CheckBox(QStringLiteral("%1%2").arg(names[i]).arg(end + 1), names[i], present.released[end][i]);
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

} // namespace host
