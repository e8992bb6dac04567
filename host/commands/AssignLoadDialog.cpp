#include "host/commands/AssignLoadDialog.h"

#include "host/analysis/Analysis.h"
#include "host/commands/AssignForm.h"
#include "host/commands/AssignLoad.h"
#include "host/commands/AssignLoadKinds.h"
#include "host/document/HostDocument.h"
#include "model/element/Linea.h"
#include "model/entity/CasoCarico.h"
#include "platform/toolkit/Bridge.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>
#include <vector>

namespace host {

namespace {

// What can carry loads among the selected objects.
struct Carriers {
    explicit Carriers(const HostSelection& selection) : nodes(selection.Size(Kind::Node)) {
        for (const Kind kind : {Kind::Beam, Kind::Truss}) {
            lines += selection.Size(kind);
            for (int i = 0; i < selection.Size(kind); ++i)
                shortest = std::min(shortest, static_cast<CLinea*>(selection.At(kind, i))->GetLunghezzaLinea());
        }
    }

    bool Fit(LoadKind::Target target) const {
        return target == LoadKind::Target::Model || (target == LoadKind::Target::Nodes ? nodes : lines) > 0;
    }
    QString Text(LoadKind::Target target) const {
        if (target == LoadKind::Target::Model)
            return "tutto il modello";
        if (target == LoadKind::Target::Nodes)
            return nodes == 1 ? QString("1 nodo") : QStringLiteral("%1 nodi").arg(nodes);
        return lines == 1 ? QString("1 elemento") : QStringLiteral("%1 elementi").arg(lines);
    }

    int nodes;
    int lines = 0;
    double shortest = std::numeric_limits<double>::max(); // length; of the lines
};

class LoadForm {
  public:
    LoadForm(QWidget& parent, HostDocument& document)
        : m_form(parent, "Carico"), m_document(document), m_carriers(document.Selection()) {
        AddCases();
        m_reference->setObjectName("riferimento");
        m_reference->addItems({"Globale", "Locale"}); // in the order of CCarico::Reference
        m_axis->setObjectName("asse");
        m_axis->addItems({"", "", ""});
        m_axis->setCurrentIndex(2); // most loads are vertical
        m_kind->setObjectName("tipo");
        m_rows->addRow("Caso di carico:", m_case);
        m_rows->addRow("Carico:", m_kind);
        m_rows->addRow("Agisce su:", m_target);
        m_rows->addRow("Riferimento:", m_reference);
        m_rows->addRow("Asse:", m_axis);
        for (const LoadKind& kind : LoadKinds())
            if (m_carriers.Fit(kind.target))
                AddKind(kind);
        m_form.Content().addLayout(m_rows);
        if (m_kinds.size() == 1)
            m_form.Content().addWidget(new QLabel("Per gli altri carichi selezionare nodi, travi o aste."));
        FollowCase();
        FollowKind();
        QObject::connect(m_case, &QComboBox::currentIndexChanged, &m_form, [this] { FollowCase(); });
        QObject::connect(m_kind, &QComboBox::currentIndexChanged, &m_form, [this] { FollowKind(); });
        QObject::connect(m_reference, &QComboBox::currentIndexChanged, &m_form, [this] { NameAxes(); });
        m_form.SetCheck([this] { return Read(); });
    }

    LoadChoice Ask() {
        if (!m_form.Ask())
            return {};
        return {&Case(), Chosen().make(m_answers)};
    }

  private:
    // The rows of a kind; shown while it is the chosen one.
    struct KindRows {
        const LoadKind& kind;
        std::vector<QLabel*> labels; // the form's, like the fields
        std::vector<QLineEdit*> fields;
    };

    const KindRows& Rows() const { return m_kinds[static_cast<std::size_t>(m_kind->currentIndex())]; }
    const LoadKind& Chosen() const { return Rows().kind; }
    CCasoCarico& Case() const { return *m_document.GetIndexCasoCarico(m_case->currentIndex()); }

    void AddCases() {
        m_case->setObjectName("caso");
        for (int i = 0; i < m_document.GetSizeCasiCarico(); ++i) {
            CCasoCarico* loadCase = m_document.GetIndexCasoCarico(i);
            m_case->addItem(platform::ToQString(loadCase->GetNome()));
            if (loadCase == m_document.GetSelectCasoCarico())
                m_case->setCurrentIndex(i);
        }
    }

    void AddKind(const LoadKind& kind) {
        KindRows rows{kind, {}, {}};
        for (const LoadField& field : kind.fields) {
            rows.labels.push_back(new QLabel);
            rows.fields.push_back(NumberField(QString(kind.name) + "." + field.name, 0));
            rows.labels.back()->setBuddy(rows.fields.back());
            m_rows->addRow(rows.labels.back(), rows.fields.back());
        }
        if (kind.isStretch) // the whole line
            rows.fields[1]->setText(QString::number(m_carriers.shortest, 'g', 15));
        m_kinds.push_back(std::move(rows));
        m_kind->addItem(QString::fromUtf8(kind.caption));
    }

    // The self weight belongs to the case: what it has is shown, unless the user has typed something already.
    void FollowCase() {
        const KindRows& last = m_kinds.back();
        CFPoint present = SelfWeightOf(Case());
        if (present == CFPoint())
            present.z = -CGrandezza::_Gravity(m_document.GetLunghezza());
        const double values[] = {present.x, present.y, present.z};
        const bool typed = std::any_of(last.fields.begin(), last.fields.end(),
                                       [](const QLineEdit* field) { return field->isModified(); });
        for (std::size_t i = 0; !typed && i < last.fields.size(); ++i)
            last.fields[i]->setText(QString::number(values[i], 'g', 15));
    }

    void FollowKind() {
        for (const KindRows& rows : m_kinds)
            for (QLineEdit* field : rows.fields)
                m_rows->setRowVisible(field, &rows == &Rows());
        m_rows->setRowVisible(m_reference, Chosen().axes == LoadKind::Axes::Chosen);
        m_rows->setRowVisible(m_axis, Chosen().isStretch);
        m_target->setText(m_carriers.Text(Chosen().target));
        NameAxes();
    }

    int Reference() const {
        if (Chosen().axes == LoadKind::Axes::Chosen)
            return m_reference->currentIndex();
        return Chosen().axes == LoadKind::Axes::Local ? CCarico::Local : CCarico::Global;
    }

    void NameAxes() {
        const QString names = Reference() == CCarico::Local ? "123" : "XYZ";
        for (int i = 0; i < 3; ++i)
            m_axis->setItemText(i, names.at(i));
        for (std::size_t i = 0; i < Chosen().fields.size(); ++i) {
            const LoadField& field = Chosen().fields[i];
            const QString axis = field.axis < 0 ? QString() : QStringLiteral(" ") + names.at(field.axis);
            Rows().labels[i]->setText(QStringLiteral("%1%2 (%3):").arg(field.caption, axis, Unit(field)));
        }
    }

    QString Unit(const LoadField& field) const {
        QString unit = QString::fromUtf8(field.unit); // lengths first: no symbol of theirs has an F
        unit.replace('L', platform::ToQString(CGrandezza::_GetStringLunghezza(m_document.GetLunghezza())));
        return unit.replace('F', platform::ToQString(CGrandezza::_GetStringForza(m_document.GetForza())));
    }

    bool Read() {
        m_answers = {};
        m_answers.reference = Reference();
        m_answers.axis = m_axis->currentIndex();
        for (std::size_t i = 0; i < Chosen().fields.size(); ++i)
            if (!ReadNumber(*Rows().fields[i], m_answers.values[i]))
                return false;
        return CheckPlaces() && CheckNotNull();
    }

    bool CheckPlaces() {
        const auto& values = m_answers.values;
        for (std::size_t i = 0; i < Chosen().fields.size(); ++i) {
            if (Chosen().fields[i].role != LoadField::Role::Place)
                continue;
            if (values[i] < 0 || values[i] > m_carriers.shortest * (1 + sameEnd)) {
                CString message;
                message.Format("La distanza deve essere compresa tra 0 e %.15g %s, la lunghezza dell'elemento "
                               "selezionato più corto."_t,
                               m_carriers.shortest, CGrandezza::_GetStringLunghezza(m_document.GetLunghezza()));
                return RefuseField(*Rows().fields[i], message);
            }
        }
        if (Chosen().isStretch && values[1] <= values[0])
            return RefuseField(*Rows().fields[1], "La fine del tratto deve seguire l'inizio.");
        return true;
    }

    bool CheckNotNull() {
        QLineEdit* first = nullptr;
        for (std::size_t i = 0; i < Chosen().fields.size(); ++i) {
            if (Chosen().fields[i].role != LoadField::Role::Value)
                continue;
            if (m_answers.values[i] != 0)
                return true;
            first = first ? first : Rows().fields[i];
        }
        // It takes the case's self weight away.
        if (Chosen().target == LoadKind::Target::Model && SelfWeightOf(Case()) != CFPoint())
            return true;
        return RefuseField(*first, "Il carico è nullo."_t);
    }

    AssignForm m_form;
    HostDocument& m_document;
    Carriers m_carriers;
    LoadAnswers m_answers;
    std::vector<KindRows> m_kinds; // those that fit; the self weight, which always does, is the last one
    // The form's, like everything below.
    QFormLayout* m_rows = new QFormLayout;
    QComboBox* m_case = new QComboBox;
    QComboBox* m_kind = new QComboBox;
    QLabel* m_target = new QLabel;
    QComboBox* m_reference = new QComboBox;
    QComboBox* m_axis = new QComboBox;
};

} // namespace

LoadChoice AskLoad(QWidget& parent, HostDocument& document) {
    return LoadForm(parent, document).Ask();
}

} // namespace host
