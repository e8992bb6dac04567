// Random frames beside a second solution that shares nothing with the analysis, and random mechanisms.
//
// QUOVAR_RANDOM_MODELS and QUOVAR_SEED set how many models there are and the first one's seed.
#include "host/analysis/Analysis.h"
#include "tests/host/AnalysisModel.h"

#include <gtest/gtest.h>

#include <Eigen/Geometry>
#include <Eigen/LU>

#include <cmath>
#include <cstdlib>
#include <functional>
#include <random>

using namespace host;

namespace {

using Vector = Eigen::Vector3d;
using LongMatrix = Eigen::Matrix<long double, Eigen::Dynamic, Eigen::Dynamic>;
constexpr unsigned all = CVincolo::All;

int FromEnvironment(const char* name, int otherwise) {
    const char* const value = std::getenv(name);
    return value ? std::atoi(value) : otherwise;
}

Vector Of(const CFPoint& point) {
    return {point.x, point.y, point.z};
}

CFPoint Of(const Vector& vector) {
    return {vector(0), vector(1), vector(2)};
}

class Random {
  public:
    explicit Random(unsigned seed) : m_engine(seed) {}
    double Number(double from, double to) { return std::uniform_real_distribution<double>(from, to)(m_engine); }
    int Below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }
    bool Once(int in) { return Below(in) == 0; }
    Vector Within(double size) { return {Number(-size, size), Number(-size, size), Number(-size, size)}; }

  private:
    std::mt19937 m_engine;
};

// Force and moment per length, and lumps of them, along a member's local axes; strains that no force makes.
struct Acting {
    std::function<Vector(double x)> spread = [](double) { return Vector::Zero(); };
    double place = 0;
    Vector force = Vector::Zero(), moment = Vector::Zero();
    double stretch = 0;
    Vector curvature = Vector::Zero();
};

struct Bar {
    int nodes[2];
    double length;
    Eigen::Matrix3d axes;                    // rows
    Eigen::Matrix<double, 6, 1> flexibility; // of a slice, under N, V2, V3, T, M2, M3
    std::vector<int> jumps;                  // components, 0 to 11, that the node does not share
    Acting acting;
};

// All forces and all motions at once: equilibrium of the nodes, the strains of each member integrated along it from
// the forces on its second end, no force where it is released. No stiffness is formed.
class ForcesAndMotions {
  public:
    std::vector<Bar> bars;
    std::vector<unsigned> fixed;
    Eigen::VectorXd nodal, prescribed; // six a node
    struct Spring {
        int place; // of its first component
        Vector direction;
        double stiffness;
    };
    std::vector<Spring> springs;

    Eigen::VectorXd motions;
    std::vector<Eigen::Matrix<double, 12, 1>> ends; // by bar, local

    void Solve() {
        const auto motionCount = nodal.size();
        Eigen::Index size = motionCount + 6 * static_cast<Eigen::Index>(bars.size());
        for (const Bar& bar : bars)
            size += static_cast<Eigen::Index>(bar.jumps.size());
        LongMatrix m = LongMatrix::Zero(size, size);
        LongMatrix right = LongMatrix::Zero(size, 1);
        right.topRows(motionCount) = nodal.cast<long double>();
        for (const Spring& spring : springs)
            m.block<3, 3>(spring.place, spring.place) +=
                (spring.stiffness * spring.direction * spring.direction.transpose()).cast<long double>();
        Eigen::Index jump = motionCount + 6 * static_cast<Eigen::Index>(bars.size());
        for (std::size_t i = 0; i < bars.size(); ++i) {
            EnterBar(bars[i], motionCount + 6 * static_cast<Eigen::Index>(i), jump, m, right);
            jump += static_cast<Eigen::Index>(bars[i].jumps.size());
        }
        for (Eigen::Index i = 0; i < motionCount; ++i) {
            if (!(fixed[static_cast<std::size_t>(i / 6)] >> (i % 6) & 1))
                continue;
            m.row(i).setZero();
            m(i, i) = 1;
            right(i) = prescribed(i);
        }
        const LongMatrix solution = m.partialPivLu().solve(right);
        motions = solution.topRows(motionCount).cast<double>();
        for (std::size_t i = 0; i < bars.size(); ++i) {
            const LongMatrix second = solution.middleRows(motionCount + 6 * static_cast<Eigen::Index>(i), 6);
            Eigen::Matrix<double, 12, 1> both;
            both << (FirstEnd(bars[i]) * second + FirstEndOfLoads(bars[i])).cast<double>(), second.cast<double>();
            ends.push_back(both);
        }
    }

  private:
    using Matrix6 = Eigen::Matrix<long double, 6, 6>;
    using Long6 = Eigen::Matrix<long double, 6, 1>;

    // What forces at one place do at another, `ahead` before it along axis 1.
    static Matrix6 Carried(long double ahead) {
        Matrix6 carry = Matrix6::Identity();
        carry(4, 2) = -ahead; // e1 x f
        carry(5, 1) = ahead;
        return carry;
    }

    static Matrix6 FirstEnd(const Bar& bar) { return -Carried(bar.length); }
    static Long6 FirstEndOfLoads(const Bar& bar) { return -Beyond(bar, 0); }

    // Pieces between which what acts is smooth, eight points of Gauss each.
    template <class Action>
    static void Integrate(double from, double to, const Action& action) {
        static constexpr double place[4] = {0.1834346424956498, 0.5255324099163290, 0.7966664774136267,
                                            0.9602898564975363};
        static constexpr double weight[4] = {0.3626837833783620, 0.3137066458778873, 0.2223810344533745,
                                             0.1012285362903763};
        for (int i = 0; i < 4; ++i)
            for (const double side : {-1.0, 1.0})
                action((from + to) / 2 + side * place[i] * (to - from) / 2, weight[i] * (to - from) / 2);
    }

    // The loads beyond a place, carried to it.
    static Long6 Beyond(const Bar& bar, double x) {
        Long6 sum = Long6::Zero();
        const auto pieces = [&](double from, double to) {
            Integrate(from, to, [&](double s, double weight) {
                Long6 force = Long6::Zero();
                force.head<3>() = (bar.acting.spread(s) * weight).cast<long double>();
                sum += Carried(s - x) * force;
            });
        };
        if (x < bar.acting.place)
            pieces(x, bar.acting.place);
        pieces(std::max(x, bar.acting.place), bar.length);
        if (x < bar.acting.place) {
            Long6 lump;
            lump << bar.acting.force.cast<long double>(), bar.acting.moment.cast<long double>();
            sum += Carried(bar.acting.place - x) * lump;
        }
        return sum;
    }

    static void EnterBar(const Bar& bar, Eigen::Index row, Eigen::Index jump, LongMatrix& m, LongMatrix& right) {
        Eigen::Matrix<long double, 6, 6> turned = Matrix6::Zero();
        turned.topLeftCorner<3, 3>() = turned.bottomRightCorner<3, 3>() = bar.axes.cast<long double>();
        const Eigen::Index first = 6 * bar.nodes[0], second = 6 * bar.nodes[1];
        // The nodes act on the ends.
        m.block<6, 6>(first, row) += turned.transpose() * FirstEnd(bar);
        m.block<6, 6>(second, row) += turned.transpose();
        right.middleRows<6>(first) -= turned.transpose() * FirstEndOfLoads(bar);
        // The second end moves with the first one as a rigid body, and by the strains between.
        const Matrix6 rigid = Carried(bar.length).transpose();
        m.block<6, 6>(row, second) = turned;
        m.block<6, 6>(row, first) = -rigid * turned;
        const auto slices = [&](double from, double to) {
            Integrate(from, to, [&](double x, double weight) {
                const Matrix6 carry = Carried(bar.length - x);
                const Matrix6 slice = (bar.flexibility * weight).cast<long double>().asDiagonal();
                m.block<6, 6>(row, row) -= carry.transpose() * slice * carry;
                Long6 strain = slice * Beyond(bar, x);
                strain(0) += bar.acting.stretch * weight;
                strain.tail<3>() += (bar.acting.curvature * weight).cast<long double>();
                right.middleRows<6>(row) += carry.transpose() * strain;
            });
        };
        slices(0, bar.acting.place);
        slices(bar.acting.place, bar.length);
        for (const int component : bar.jumps) {
            const bool atFirst = component < 6;
            const Long6 unit = Long6::Unit(component % 6);
            m.block<6, 1>(row, jump) = atFirst ? Long6(-rigid * unit) : unit;
            m.block<1, 6>(jump, row) = unit.transpose() * (atFirst ? FirstEnd(bar) : Matrix6::Identity());
            if (atFirst)
                right(jump) = -unit.dot(FirstEndOfLoads(bar));
            ++jump;
        }
    }
};

// A frame as the analysis reads it and, beside it, as the second solution does.
class RandomFrame {
  public:
    explicit RandomFrame(unsigned seed) : random(seed) {
        Vary();
        const int count = 3 + random.Below(5);
        for (int i = 0; i < count; ++i) {
            const Vector place = i == 0 ? random.Within(10) : Of(*nodes.back()->GetPunto()) + Leg();
            AddNode(place, i == 0 ? all : random.Once(4) ? static_cast<unsigned>(random.Below(64)) : 0);
            if (i > 0)
                AddBar(i - 1, i, true);
        }
        for (int i = random.Below(4); i > 0; --i) {
            const int from = random.Below(count), to = random.Below(count);
            if (std::abs(from - to) > 1)
                AddBar(from, to, false);
        }
    }

    void Load() {
        for (std::size_t i = 0; i < nodes.size(); ++i)
            LoadNode(static_cast<int>(i));
        for (std::size_t i = 0; i < lines.size(); ++i)
            LoadBar(*lines[i], second.bars[i]);
    }

    CNodo* AddNode(const Vector& place, unsigned fixed) {
        nodes.push_back(model.Node(place(0), place(1), place(2), fixed));
        second.fixed.push_back(fixed);
        second.nodal.conservativeResizeLike(Eigen::VectorXd::Zero(6 * static_cast<Eigen::Index>(nodes.size())));
        second.prescribed = second.nodal;
        return nodes.back();
    }

    // One of the tree holds its nodes for sure.
    CLineaRisultati* AddBar(int from, int to, bool whole) {
        Bar bar{{from, to}, 0, {}, {}, {}, {}};
        CLineaRisultati* line;
        if (!whole && random.Once(3)) {
            line = model.Truss(nodes[static_cast<std::size_t>(from)], nodes[static_cast<std::size_t>(to)]);
            bar.jumps = {3, 4, 5, 10, 11};
        } else {
            CTrave* beam = model.Beam(nodes[static_cast<std::size_t>(from)], nodes[static_cast<std::size_t>(to)]);
            line = beam;
            const double beta = random.Number(-180, 180);
            model.document.Modify(*beam, [&] { beam->SetBeta(beta); });
            if (!whole)
                ReleaseSome(beam, bar);
        }
        CFPoint axes[3];
        line->GetLocalAxes(axes[0], axes[1], axes[2]);
        for (int i = 0; i < 3; ++i)
            bar.axes.row(i) = Of(axes[i]);
        bar.length = line->GetLunghezzaLinea();
        const auto shear = [](double area) { return area > 0 ? 1 / (AnalysisModel::G * area) : 0; };
        const CSezione& section = *model.section;
        bar.flexibility << 1 / (AnalysisModel::E * section.GetArea()), shear(section.GetArea2()),
            shear(section.GetArea3()), 1 / (AnalysisModel::G * section.GetJ()),
            1 / (AnalysisModel::E * section.GetI2()), 1 / (AnalysisModel::E * section.GetI3());
        second.bars.push_back(bar);
        lines.push_back(line);
        return line;
    }

    Vector Leg() { return random.Within(1).normalized() * random.Number(0.5, 6); }

    Random random;
    AnalysisModel model;
    std::vector<CNodo*> nodes;
    std::vector<CLineaRisultati*> lines;
    ForcesAndMotions second;

  private:
    void Vary() {
        model.document.Modify(*model.section, [&] {
            model.section->SetArea(random.Number(0.005, 0.1));
            model.section->SetI2(random.Number(1e-6, 1e-3));
            model.section->SetI3(random.Number(1e-6, 1e-3));
            model.section->SetArea2(random.Once(2) ? 0 : random.Number(0.001, 0.05));
            model.section->SetArea3(random.Once(2) ? 0 : random.Number(0.001, 0.05));
        });
    }

    void ReleaseSome(CTrave* beam, Bar& bar) {
        static constexpr int places[4] = {0, 3, 4, 5};
        bool released[2][4] = {};
        for (int end = 0; end < 2; ++end)
            for (int i = 0; i < 4; ++i) {
                if (!random.Once(3) || (i < 2 && end == 1 && released[0][i])) // a member that slides or spins by itself
                    continue;
                released[end][i] = true;
                bar.jumps.push_back(places[i] + 6 * end);
            }
        for (int end = 0; end < 2; ++end)
            model.Release(beam, end, released[end][0], released[end][1], released[end][2], released[end][3]);
    }

    void LoadNode(int i) {
        CNodo* node = nodes[static_cast<std::size_t>(i)];
        const unsigned fixed = second.fixed[static_cast<std::size_t>(i)];
        if (random.Once(2)) {
            const Vector force = random.Within(50), moment = random.Within(20);
            model.Force(node, Of(force), Of(moment));
            second.nodal.segment<6>(6 * i) << force, moment;
        }
        if (fixed && random.Once(2)) {
            Vector moved = random.Within(0.01), turned = random.Within(0.005);
            for (int j = 0; j < 3; ++j) {
                moved(j) *= fixed >> j & 1;
                turned(j) *= fixed >> (3 + j) & 1;
            }
            model.On(node, CCaricoSpostamento(Of(moved), Of(turned)));
            second.prescribed.segment<6>(6 * i) << moved, turned;
        }
        if (random.Once(3)) {
            const Vector direction = random.Within(1).normalized();
            const double stiffness = std::pow(10, random.Number(-3, 4));
            const bool turns = random.Once(2);
            model.document.Modify(*node, [&] {
                node->AddSpring(CMolla(turns ? CMolla::Rotational : CMolla::Translational, stiffness, Of(direction)));
            });
            second.springs.push_back({6 * i + (turns ? 3 : 0), direction, stiffness});
        }
    }

    void LoadBar(CLineaRisultati& line, Bar& bar) {
        Acting& acting = bar.acting;
        const auto local = [&](const Vector& global) { return Vector(bar.axes * global); };
        Vector uniform = Vector::Zero(), first = Vector::Zero(), last = Vector::Zero();
        if (random.Once(2)) {
            uniform = random.Within(10);
            model.On(&line, CCaricoUniforme(Of(uniform), CCarico::Global));
            uniform = local(uniform);
        }
        if (random.Once(3)) {
            CCaricoTrapezoidale load;
            load.SetReference(CCarico::Local);
            for (int axis = 0; axis < 3; ++axis) {
                first(axis) = random.Number(-8, 8);
                last(axis) = random.Number(-8, 8);
                load.GetStretch(axis) = {0, bar.length, first(axis), last(axis)};
            }
            model.On(&line, load);
        }
        acting.spread = [=, length = bar.length](double x) {
            return Vector(uniform + first + (last - first) * x / length);
        };
        const bool truss = line.IsKindOf(RUNTIME_CLASS(CAsta));
        if (random.Once(2)) {
            acting.place = random.Number(0.1, 0.9) * bar.length;
            acting.force = random.Within(30);
            if (!truss)
                acting.moment = random.Within(10);
            CCaricoConcentrato load(Of(acting.force), acting.place, CCarico::Local);
            load.GetMomentVector() = Of(acting.moment);
            model.On(&line, load);
        }
        if (random.Once(3)) {
            CCaricoTemperatura load;
            const double warmer = random.Number(-30, 30), along2 = random.Number(-50, 50),
                         along3 = random.Number(-50, 50);
            load.GetTemperature() = warmer;
            load.GetGradient2() = along2;
            load.GetGradient3() = along3;
            model.On(&line, load);
            acting.stretch = AnalysisModel::alpha * warmer;
            acting.curvature = Vector(0, along3, -along2) * AnalysisModel::alpha;
        }
    }
};

void ExpectAlike(const Eigen::VectorXd& ours, const Eigen::VectorXd& theirs, double scale, const char* what) {
    EXPECT_LE((ours - theirs).cwiseAbs().maxCoeff(), 1e-8 * scale) << what;
}

// Catches whatever one element, release, load or support does wrong in some position that nobody thought of.
TEST(AnalysisRandom, FramesAgreeWithAnotherSolution) {
    const int models = FromEnvironment("QUOVAR_RANDOM_MODELS", 300), from = FromEnvironment("QUOVAR_SEED", 1);
    for (int seed = from; seed < from + models && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        RandomFrame frame(static_cast<unsigned>(seed));
        frame.Load();
        const AnalysisOutcome outcome = frame.model.document.RunAnalysis();
        ASSERT_FALSE(outcome.refusal) << outcome.refusal->message.ToUtf8();
        EXPECT_TRUE(outcome.notes.empty()) << outcome.notes[0].ToUtf8();
        const CaseResults& ours = *frame.model.document.Analysis().Results(frame.model.firstCase->GetID());
        frame.second.Solve();
        const double moved = frame.second.motions.cwiseAbs().maxCoeff();
        for (std::size_t i = 0; i < frame.nodes.size(); ++i)
            ExpectAlike(Eigen::Map<const Eigen::Matrix<double, 6, 1>>(ours.displacements[i].data()),
                        frame.second.motions.segment<6>(6 * static_cast<Eigen::Index>(i)), moved, "displacements");
        double largest = 1; // a change of temperature alone may leave rounding only, of forces much larger than this
        for (const auto& ends : frame.second.ends)
            largest = std::max(largest, ends.cwiseAbs().maxCoeff());
        const int beams = frame.model.document.Data().Size(Kind::Beam);
        for (std::size_t i = 0, beam = 0, truss = static_cast<std::size_t>(beams); i < frame.lines.size(); ++i) {
            const bool isTruss = frame.lines[i]->IsKindOf(RUNTIME_CLASS(CAsta));
            double ends[12];
            ours.lines[isTruss ? truss++ : beam++].GetEndForces(ends);
            ExpectAlike(Eigen::Map<Eigen::Matrix<double, 12, 1>>(ends), frame.second.ends[i], largest, "end forces");
        }
    }
}

// Something that moves for nothing, somewhere on a sound frame.
void AddMechanism(RandomFrame& frame, int kind) {
    Random& random = frame.random;
    const int at = static_cast<int>(frame.nodes.size()), root = random.Below(at);
    const auto placeOf = [&](int node) { return Of(*frame.nodes[static_cast<std::size_t>(node)]->GetPunto()); };
    const auto beam = [&](int from, int to) { return static_cast<CTrave*>(frame.AddBar(from, to, true)); };
    const auto hinge = [&](CTrave* line) {
        frame.model.Release(line, 0, 0, 1, 1, 1);
        frame.model.Release(line, 1, 0, 0, 1, 1);
    };
    switch (kind) {
    case 0: { // a cantilever with one release at its root
        frame.AddNode(placeOf(root) + frame.Leg(), 0);
        const int which = random.Below(3);
        frame.model.Release(beam(root, at), 0, which == 0, 0, which == 1, which == 2);
        break;
    }
    case 1: { // a frame of its own on one support that lets one component go
        frame.AddNode(frame.random.Within(20), all & ~(1u << random.Below(6)));
        for (int i = 0; i < 3; ++i) {
            frame.AddNode(placeOf(at + i) + frame.Leg(), 0);
            beam(at + i, at + i + 1);
        }
        break;
    }
    case 2: { // a parallelogram of hinged members
        const Vector side = frame.Leg();
        const int other = (root + 1) % at;
        frame.AddNode(placeOf(root) + side, 0);
        frame.AddNode(placeOf(other) + side, 0);
        hinge(beam(root, at));
        hinge(beam(other, at + 1));
        beam(at, at + 1);
        break;
    }
    case 3:   // two bars in line
    case 4: { // several hinged members in line
        const int other = (root + 1) % at, pieces = kind == 3 ? 2 : 3 + random.Below(20);
        int last = root;
        for (int i = 1; i <= pieces; ++i) {
            const int next = i == pieces ? other : at + i - 1;
            if (i < pieces)
                frame.AddNode(placeOf(root) + (placeOf(other) - placeOf(root)) * i / pieces, 0);
            if (kind == 3)
                frame.model.Truss(frame.nodes[static_cast<std::size_t>(last)],
                                  frame.nodes[static_cast<std::size_t>(next)]);
            else
                hinge(beam(last, next));
            last = next;
        }
        break;
    }
    default: // nothing holds it
        frame.AddNode(random.Within(10), 0);
        frame.AddNode(random.Within(10), 0);
        beam(at, at + 1);
    }
}

// Catches small pivots that are taken for stiffness: displacements of 1e16, printed like others.
TEST(AnalysisRandom, MechanismsAreRefused) {
    const int models = FromEnvironment("QUOVAR_RANDOM_MODELS", 300), from = FromEnvironment("QUOVAR_SEED", 1);
    for (int seed = from; seed < from + models; ++seed) {
        SCOPED_TRACE(seed);
        RandomFrame frame(static_cast<unsigned>(seed));
        AddMechanism(frame, seed % 6);
        EXPECT_EQ(frame.model.Refusal().ToUtf8().rfind("La struttura è labile: ", 0), 0u)
            << frame.model.Refusal().ToUtf8();
    }
}

} // namespace
