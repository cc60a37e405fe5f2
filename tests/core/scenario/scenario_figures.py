#!/usr/bin/env python3
"""The scenario screens' figures worked out afresh, for the expected values of the scenario tests.

The sheets are those of sheet_figures.py, opened and refreshed there; here each is simulated at
every strike as the desk's rules say: the simulation's own tree (the exercise value kept on a tie,
rounded to 2 decimals), its closed formula with its own normal curve (rounded to 3, then to 2), the
totals rounded to rupees (stock) or paise (index), and the Greek totals day by day.

    python3 tests/core/scenario/scenario_figures.py > tests/core/scenario/ScenarioFigures.h
"""
import math
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "sheet"))
import sheet_figures as sf  # noqa: E402


def binomial_value(S, K, T, r, v, b, n, call):
    dt = T / n
    u = math.exp(math.sqrt(dt) * v)
    d = 1 / u
    p = 0.0 if T <= 0 else (math.exp(b * dt) - d) / (u - d)
    Df = math.exp(-r * dt)
    z = 1.0 if call else -1.0
    bmax = lambda a, c: a if a >= c else c  # noqa: E731
    V = [bmax(z * (S * u ** i * d ** (n - i) - K), 0.0) for i in range(n + 1)]
    for j in range(n - 1, -1, -1):
        for i in range(j + 1):
            V[i] = bmax(z * (S * u ** i * d ** abs(i - j) - K), ((1 - p) * V[i] + p * V[i + 1]) * Df)
    return sf.Round(V[0], 2)


def sim_normal(x):
    t = 1 / (1 + 0.2316419 * abs(x))
    poly = (0.31938153 * t - 0.356563782 * t ** 2 + 1.781477937 * t ** 3 - 1.821255978 * t ** 4
            + 1.330274429 * t ** 5)
    q = 1 - math.exp(-x ** 2 / 2) / math.sqrt(6.283185308) * poly
    return q if x >= 0 else 1 - q


def option_total(s, S, at_expiry):
    f, g = s.f, s.g
    if f["TxtMktPrice"] in ("", "0") or f["TxtDays"] == "" or f["TxtImpVol"] in ("", "0"):
        return 0.0
    total, cv, pv, d1, d2 = 0.0, 0.0, 0.0, 0.0, 0.0
    days = float(f["TxtDays"])
    for c in g[2:]:
        K, U = float(c[0]), float(c[2] or "0")
        if c[1] == "C":
            cv = sf.val(f["TxtImpVol"]) / 100
        else:
            pv = sf.val(f["TxtImpVolP"]) / 100
        if not s.index:
            T = 0.0 if at_expiry else days * 0.5 / (180 if K <= S and cv <= 0.5 and pv <= 0.5 else 183.2)
            if U != 0 and c[1] in "CP":
                total += U * binomial_value(S, K, T, s.r, cv if c[1] == "C" else pv, 0.1, 100, c[1] == "C")
            continue
        sd, vol = (0.0 if at_expiry else days), (cv if c[1] == "C" else pv)
        Y = sd / 365
        if Y > 0:
            d1 = (math.log(S / K) + (s.r + vol * vol / 2) * Y) / (vol * math.sqrt(Y))
            d2 = d1 - math.sqrt(Y) * vol
        if c[1] == "C":
            value = (S - K if S > K else 0.0) if sd == 0 else sf.Round(
                S * sim_normal(d1) - math.exp(-s.r * Y) * K * sim_normal(d2), 3)
        else:
            value = (K - S if S < K else 0.0) if sd == 0 else sf.Round(
                math.exp(-s.r * Y) * K * sim_normal(-d2) - S * sim_normal(-d1), 3)
        total += U * sf.Round(value, 2)
    return total


def simulation(s):
    f = s.f
    rows = []
    for c in s.g[2::2]:
        S = float(c[0])
        lots, trade = sf.val(f["TxtFutLots"]), sf.val(f["TxtFutTrade"])
        fut = lots * (S - trade) if s.index else sf.Round((S - trade) * lots, 0)
        fixed = [sf.val(f[n]) for n in ("TxtPremium", "TxtComm", "TxtOptR", "TxtFutR")]
        out = []
        for at_expiry in (False, True):
            total = fixed[0] + option_total(s, S, at_expiry) + fixed[1] + fixed[2] + fixed[3] + fut
            out.append(sf.Round(total, 2 if s.index else 0))
        rows.append((c[0].strip(), out[0], out[1]))
    return rows


def vb_str(x):
    return (" " if x >= 0 else "") + sf.text(x)


def main():
    print("#pragma once")
    print("// The expected simulation tables of the scenario tests, printed by scenario_figures.py:")
    print("//     python3 tests/core/scenario/scenario_figures.py > tests/core/scenario/ScenarioFigures.h")
    print("// For each saved sheet of SheetScenarios.h as it opens: Market, Intrinsic and Simulation.")
    print("")
    print("namespace tallimark::test::figures {")
    for name, make in sf.SCENARIOS.items():
        s = make()
        s.refresh()
        rows = simulation(s)
        print("")
        print("inline const char* const k%sSimulation[%d][3] = {" % (name, len(rows)))
        for m, a, b in rows:
            print('    {"%s", "%s", "%s"},' % (m, vb_str(a), vb_str(b)))
        print("};")
    print("")
    print("} // namespace tallimark::test::figures")


if __name__ == "__main__":
    main()
