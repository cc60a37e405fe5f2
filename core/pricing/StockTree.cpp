#include "pricing/StockTree.h"

#include "frame/VbError.h"
#include "frame/VbNumber.h"

#include <cfenv>
#include <cstdlib>
#include <cstring>
#include <utility>

// The node loop is built twice, for AVX2 and for any x86-64, and the loader picks one. Both are
// the same IEEE operations in the same order (no fused multiply-add: the build forbids
// contraction), so they give the same bits.
#if defined(__GNUC__) && defined(__x86_64__) && defined(__linux__)
#define TALLIMARK_NODE_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define TALLIMARK_NODE_CLONES
#endif

namespace tallimark::pricing {
namespace {

// The desk's run-time stopped at the first arithmetic overflow. The node loops run on plain IEEE
// arithmetic instead, and the sticky overflow and invalid flags tell afterwards whether any node
// would have stopped it.
class OverflowWatch {
public:
    OverflowWatch() {
        if (std::fetestexcept(kFlags)) std::feclearexcept(kFlags);
    }
    double check(double value) const {
        if (std::fetestexcept(kFlags)) vberr::raise(vberr::Overflow);
        return vb::checked(value);
    }

private:
    static constexpr int kFlags = FE_OVERFLOW | FE_INVALID;
};

// The scalar set-up of a tree, shared by both builds so that they start from the same bits.
struct Setup {
    double u, d, p, q, df, z;
};

Setup setUp(const TreeArgs& a) {
    const double dt = vb::div(a.T, a.n);
    if (a.n < 1) vberr::raise(vberr::InvalidCall);
    const double u = vb::exp(a.sigma * vb::sqr(dt));
    const double d = vb::div(1, u);
    const double p = a.T > 0 ? vb::div(vb::exp(a.b * dt) - d, u - d) : 0;
    const double df = vb::exp(-a.r * dt);
    return {u, d, p, 1 - p, df, a.side == OptionSide::Call ? 1.0 : -1.0};
}

// One row of the fast tree: node i reads cur[i] and cur[i + 1] and writes nxt[i].
struct Row {
    const double* spot; // S*pow(u, i)
    const double* dk;   // pow(d, j - i)
    const double* cur;
    double* nxt;
    double z, K, p, q, df;
};

using Lanes = double __attribute__((vector_size(4 * sizeof(double))));
constexpr int kLanes = 4;

// Four neighbouring nodes, each with the very operations of a single node.
template <bool ExerciseOnTie> [[gnu::always_inline]] inline void fourNodes(const Row& w, int i) {
    Lanes s, dk, up, dn;
    std::memcpy(&s, w.spot + i, sizeof s);
    std::memcpy(&dk, w.dk + i, sizeof dk);
    std::memcpy(&up, w.cur + i + 1, sizeof up);
    std::memcpy(&dn, w.cur + i, sizeof dn);
    const Lanes e = w.z * (s * dk - w.K);
    const Lanes c = (w.p * up + w.q * dn) * w.df;
    Lanes v;
    if constexpr (ExerciseOnTie)
        v = e >= c ? e : c;
    else
        v = e > c ? e : c;
    std::memcpy(w.nxt + i, &v, sizeof v);
}

// Nodes 0..m-1 of a row. Whole groups of four; the last group is moved back to end at the row's
// end, which recomputes a few nodes to the same bits since cur is left untouched.
template <bool ExerciseOnTie> [[gnu::always_inline]] inline void rowNodes(const Row& w, int m) {
    if (m < kLanes) {
        for (int i = 0; i < m; ++i) {
            const double E = w.z * (w.spot[i] * w.dk[i] - w.K);
            const double C = (w.p * w.cur[i + 1] + w.q * w.cur[i]) * w.df;
            w.nxt[i] = ExerciseOnTie ? BinomialMax(E, C) : MaxOf(E, C);
        }
        return;
    }
    int i = 0;
    for (; i + kLanes <= m; i += kLanes)
        fourNodes<ExerciseOnTie>(w, i);
    if (i < m) fourNodes<ExerciseOnTie>(w, m - kLanes);
}

// Leaves and the walk back to the root; ping and pong take turns as the row read and written.
// A leaf is the same under either tie rule: both keep the intrinsic value on a tie with 0.
template <bool ExerciseOnTie>
[[gnu::always_inline]] inline double rollBackNodes(const double* spot, const double* down, int n,
                                                   const Setup& s, double K, double* ping, double* pong,
                                                   double& d0, double& d1) {
    for (int i = 0; i <= n; ++i)
        ping[i] = MaxOf(0, s.z * (spot[i] * down[i] - K));
    double* cur = ping;
    double* nxt = pong;
    for (int j = n - 1; j >= 0; --j) {
        rowNodes<ExerciseOnTie>(Row{spot, down + (n - j), cur, nxt, s.z, K, s.p, s.q, s.df}, j + 1);
        if (j == 1) {
            d0 = nxt[0];
            d1 = nxt[1];
        }
        std::swap(cur, nxt);
    }
    return cur[0];
}

TALLIMARK_NODE_CLONES
double rollBack(const double* spot, const double* down, int n, const Setup& s, double K, double* ping,
                double* pong, double& d0, double& d1) {
    return rollBackNodes<false>(spot, down, n, s, K, ping, pong, d0, d1);
}

TALLIMARK_NODE_CLONES
double rollBackExercising(const double* spot, const double* down, int n, const Setup& s, double K,
                          double* ping, double* pong, double& d0, double& d1) {
    return rollBackNodes<true>(spot, down, n, s, K, ping, pong, d0, d1);
}

} // namespace

TreeResult plainTree(const TreeArgs& a) {
    const OverflowWatch watch;
    const Setup s = setUp(a);
    std::vector<double> V(static_cast<size_t>(a.n) + 1);
    for (int i = 0; i <= a.n; ++i)
        V[i] = MaxOf(0, s.z * (a.S * vb::pow(s.u, i) * vb::pow(s.d, a.n - i) - a.K));
    double d0 = 0, d1 = 0;
    for (int j = a.n - 1; j >= 0; --j) {
        for (int i = 0; i <= j; ++i) {
            const double E = s.z * (a.S * vb::pow(s.u, i) * vb::pow(s.d, std::abs(i - j)) - a.K);
            const double C = (s.p * V[i + 1] + (1 - s.p) * V[i]) * s.df;
            V[i] = MaxOf(E, C);
        }
        if (j == 1) {
            d0 = V[0];
            d1 = V[1];
        }
    }
    return {watch.check(V[0]), d0, d1, s.u, s.d};
}

double treeDelta(const TreeArgs& a, const TreeResult& t) {
    if (a.T > 0) return vb::div(t.up - t.down, a.S * t.u - a.S * t.d);
    const bool call = a.side == OptionSide::Call;
    if (a.S == a.K) return (call ? 1.0 : -1.0) * 0.5;
    if (a.S > a.K) return call ? 1 : 0;
    return call ? 0 : 1;
}

TreePowers::TreePowers(double u, double d, int n) : u_(u), n_(n), up_(n + 1), down_(n + 1) {
    for (int i = 0; i <= n; ++i) {
        up_[i] = vb::pow(u, i);
        down_[i] = vb::pow(d, n - i);
    }
}

FastTree::FastTree() {
    powers_.reserve(kSlots);
}

const TreePowers& FastTree::powers(double u, double d, int n) {
    for (const TreePowers& p : powers_)
        if (p.u() == u && p.n() == n) return p;
    if (powers_.size() < kSlots) return powers_.emplace_back(u, d, n);
    TreePowers& slot = powers_[oldest_];
    slot = TreePowers(u, d, n);
    oldest_ = (oldest_ + 1) % kSlots;
    return slot;
}

TreeResult FastTree::operator()(const TreeArgs& a) {
    const OverflowWatch watch;
    const Setup s = setUp(a);
    const TreePowers& pw = powers(s.u, s.d, a.n);
    const size_t size = static_cast<size_t>(a.n) + 1;
    if (spot_.size() < size) {
        spot_.resize(size);
        ping_.resize(size);
        pong_.resize(size);
    }
    for (int i = 0; i <= a.n; ++i)
        spot_[i] = a.S * pw.up()[i];
    double d0 = 0, d1 = 0;
    const auto walk = a.exerciseOnTie ? rollBackExercising : rollBack;
    const double v = walk(spot_.data(), pw.down(), a.n, s, a.K, ping_.data(), pong_.data(), d0, d1);
    return {watch.check(v), d0, d1, s.u, s.d};
}

} // namespace tallimark::pricing
