#!/usr/bin/env python3
"""The risk sheet's figures worked out afresh, for the expected values of the sheet tests.

A plain rendering of the desk's formulas and of the sheet's refresh, written from the desk's
rules and not from the C++: the tree walked node by node with both powers, the midpoint normal
sum, the closed forms, the half-even Round and the default number text. The ledger is a list of
rows summed in the order the store walks its sheet index (CP, strike, then entry).

    python3 tests/core/sheet/sheet_figures.py > tests/core/sheet/SheetFigures.h
"""
import math

PI_STOCK = 22.0 / 7.0
PI_INDEX = 3.14159265


def Round(x, n=0):
    if n <= 0:
        return float(round(x))
    scale = 10.0 ** n
    return round(x * scale) / scale


def text(x):
    """The default number text of a double: 15 significant digits."""
    if x == 0:
        return "0"
    if isinstance(x, int):
        return str(x)
    return "%.15G" % x


def val(s):
    s = s.replace(" ", "")
    num = ""
    for ch in s:
        if ch.isdigit() or ch == "." or (ch in "+-" and not num):
            num += ch
        else:
            break
    try:
        return float(num)
    except ValueError:
        return 0.0


# ---- stock model -----------------------------------------------------------------------------

def tree(S, K, T, r, sigma, b, n, call):
    z = 1.0 if call else -1.0
    dt = T / n
    u = math.exp(sigma * math.sqrt(dt))
    d = 1 / u
    p = (math.exp(b * dt) - d) / (u - d) if T > 0 else 0.0
    Df = math.exp(-r * dt)
    V = [max_of(0, z * (S * u ** i * d ** (n - i) - K)) for i in range(n + 1)]
    D = [0.0, 0.0]
    for j in range(n - 1, -1, -1):
        for i in range(j + 1):
            E = z * (S * u ** i * d ** abs(i - j) - K)
            C = (p * V[i + 1] + (1 - p) * V[i]) * Df
            V[i] = max_of(E, C)
        if j == 1:
            D = [V[0], V[1]]
    if T > 0:
        delta = (D[1] - D[0]) / (S * u - S * d)
    elif S == K:
        delta = z * 0.5
    elif S > K:
        delta = 1.0 if call else 0.0
    else:
        delta = 0.0 if call else 1.0
    return V[0], delta


def max_of(a, b):
    return a if a > b else b


def calc_d1(x):
    h = 0.099
    s = 0.0
    t = h / 2 - 5
    while t < x and t < 4:
        s = s + math.exp(-t * t / 2) * h
        t = t + h
    return Round(s / math.sqrt(2 * PI_STOCK), 4)


def density(S, K, r, sigma, days):
    T = days * 0.5 / 183.2
    x = math.log(S / K) + (r + sigma ** 2 / 2) * T
    d1 = x / (math.sqrt(T) * sigma) if T > 0 else x
    return math.exp(-d1 ** 2 / 2) / math.sqrt(2 * PI_STOCK)


def gamma_stock(S, K, r, sigma, days):
    T = days / 365
    if T == 0:
        return 0.0
    return Round(density(S, K, r, sigma, days) / (S * sigma * math.sqrt(T)), 3)


def vega_stock(S, K, r, sigma, days):
    T = days / 365
    return Round(math.sqrt(T) * S * density(S, K, r, sigma, days) / 100, 3)


def theta_stock(S, K, r, sigmaC, days, call, option_value):
    if days <= 1:
        if days == 0:
            return 0.0
        if days == 1 and (S <= K if call else S >= K):
            return Round(option_value, 3)
        if days != 1:
            return 0.0
    half = 183.2 if call else 180
    T = days * 0.5 / half
    sigma = sigmaC
    d1 = (math.log(S / K) + (r + sigma ** 2 / 2) * T) / (sigma * math.sqrt(T))
    d2 = d1 - sigma * math.sqrt(T)
    dens = density(S, K, r, sigma, days)
    if call:
        th = (-S * dens * sigma / (2 * math.sqrt(T)) - K * r * math.exp(-r * T) * calc_d1(d2)) * 0.5 / 183.2
    else:
        th = (-S * dens * sigma / (2 * math.sqrt(T)) + K * r * math.exp(-r * T) * calc_d1(-d2)) * 0.5 / 180
    return Round(th, 3)


# ---- index model -----------------------------------------------------------------------------

def cum_normal(x):
    k = 1 / (1 + 0.2316419 * abs(x))
    q = 1 - (math.exp(-x ** 2 / 2) / math.sqrt(2 * PI_INDEX)) * (
        0.31938153 * k - 0.356563782 * k ** 2 + 1.781477937 * k ** 3 - 1.821255978 * k ** 4
        + 1.330274429 * k ** 5)
    return q if x >= 0 else 1 - q


def dens_index(x):
    return math.exp(-x ** 2 / 2) / math.sqrt(2 * PI_INDEX)


class IndexModel:
    def __init__(self):
        self.D1 = 0.0
        self.D2 = 0.0

    def d1d2(self, S, K, r, sigma, days):
        T = days / 365
        if T > 0:
            self.D1 = (math.log(S / K) + (r + sigma ** 2 / 2) * T) / (math.sqrt(T) * sigma)
            self.D2 = self.D1 - math.sqrt(T) * sigma

    def price(self, S, K, r, days, call):
        T = days / 365
        if days == 0:
            return abs(S - K) if (S > K if call else S < K) else 0.0
        if call:
            return Round(S * cum_normal(self.D1) - K * math.exp(-r * T) * cum_normal(self.D2), 3)
        return Round(math.exp(-r * T) * K * cum_normal(-self.D2) - S * cum_normal(-self.D1), 3)

    def delta(self, S, K, days, call):
        if days == 0:
            if call:
                return 1.0 if S > K else 0.0 if S < K else 0.5
            return 0.0 if S > K else -1.0 if S < K else -0.5
        return Round(cum_normal(self.D1) - (0 if call else 1), 3)

    def gamma(self, S, sigma, days):
        T = days / 365
        return 0.0 if T <= 0 else Round(dens_index(self.D1) / (S * sigma * math.sqrt(T)), 3)

    def vega(self, S, days):
        T = days / 365
        return 0.0 if T <= 0 else Round(math.sqrt(T) * S * dens_index(self.D1) / 100, 3)

    def theta(self, S, K, r, sigma, days, call):
        T = days / 365
        if T <= 0:
            return 0.0
        decay = -S * dens_index(self.D1) * sigma / (2 * math.sqrt(T))
        if call:
            return Round((decay - K * r * math.exp(-r * T) * cum_normal(self.D2)) / 365, 3)
        return Round((decay + K * r * math.exp(-r * T) * cum_normal(-self.D2)) / 365, 3)


# ---- the ledger ------------------------------------------------------------------------------

class Ledger:
    """Rows of DummyTracker for one sheet, each a dict with Units, Traded, Strike, CP, ..."""

    def __init__(self, rows):
        self.rows = [dict(r, seq=i) for i, r in enumerate(rows)]

    def ordered(self, pred):
        def key(r):
            return ({"C": 0, "P": 1, "S": 2}[r["CP"]], -1e300 if r.get("Strike") is None else r["Strike"],
                    r["seq"])
        return [r for r in sorted(self.rows, key=key) if pred(r)]

    def total(self, pred, f):
        vals = [f(r) for r in self.ordered(pred)]
        vals = [v for v in vals if v is not None]
        if not vals:
            return None
        s = 0
        for v in vals:
            s = s + v
        return s

    def series(self, pred=lambda r: True):
        seen = []
        for r in self.ordered(pred):
            k = (r.get("Strike"), r["CP"])
            if k not in seen:
                seen.append(k)
        return seen


def mul(a, b):
    return None if a is None or b is None else a * b


# ---- the stock sheet's refresh ---------------------------------------------------------------

class Sheet:
    def __init__(self, fields, ladder, ledger, rate, contract=0.0, ex_margin=0.0, index=False):
        self.f = dict(fields)
        self.g = [None, None] + [list(r) + [""] * (16 - len(r)) for r in ladder]  # rows from 2
        self.L = ledger
        self.r = rate
        self.C = contract
        self.ex = ex_margin
        self.index = index
        self.option_value = 0.0
        self.im = IndexModel()
        self.active = 2

    def last_row(self):
        return len(self.g) - 1

    def fill(self):
        f, g = self.f, self.g
        if f["TxtMktPrice"] in ("", "0") or f["TxtDays"] == "" or f["TxtImpVol"] in ("", "0"):
            return
        if f["TxtImpVolP"] in ("", "0"):
            f["TxtImpVolP"] = f["TxtImpVol"]
        tot = dict(d=0.0, t=0.0, v=0.0, g=0.0)
        acc = {k: 0.0 for k in ("CD", "CV", "CT", "CG", "PD", "PV", "PT", "PG")}
        sc = sp = 0.0
        days = float(f["TxtDays"])
        for row in range(2, self.last_row() + 1):
            c = g[row]
            K = float(c[0])
            S = float(f["TxtMktPrice"])
            r = self.r
            if c[2] == "":
                c[2] = "0"
            U = float(c[2])
            call = c[1] == "C"
            if call:
                sc = float(f["TxtImpVol"]) / 100
                c[5] = f["TxtImpVol"].strip()
            else:
                sp = float(f["TxtImpVolP"]) / 100
                c[5] = f["TxtImpVolP"].strip()
            if self.index:
                self.fill_index_row(c, S, K, U, sc if call else sp, days, call)
                continue
            half = 180 if (K <= S and sc < 0.5 and sp < 0.5) else 183.2
            T, T1 = days * 0.5 / half, (days - 1) * 0.5 / half
            sig = sc if call else sp
            v0, delta = tree(S, K, T, r, sig, 0.1, 100, call)
            self.option_value = v0
            c[4] = text(Round(v0, 2))
            c[6] = text(Round(delta * 100, 3))
            vega = vega_stock(S, K, r, sig, days)
            gam = gamma_stock(S, K, r, sig, days)
            if T > 0:
                v1, _ = tree(S, K, T1, r, sig, 0.1, 100, call)
                self.option_value = v1
                c[7] = text(Round(v1, 3))
            D = float(c[6])
            if T == 0 and c[1].strip() == "P" and val(f["TxtMktPrice"]) < val(c[0]):
                c[6] = text(-val(c[6]))
            side = "C" if call else "P"
            if T > 0 or (T == 0 and S != K and (call or S > K)):
                a = -U * D / 100
                tot["d"] += a
                acc[side + "D"] += a
                c[8] = text(Round(-U * D / 100, 1))
            elif T == 0 and S == K:
                c[8] = "0"
            else:
                a = U * D / 100
                tot["d"] += a
                acc[side + "D"] += a
                c[8] = text(Round(U * D / 100, 1))
            f["TxtTotDel"] = text(Round(tot["d"], 1))
            th = float(c[4]) - float(c[7])
            if val(f["TxtDays"]) > 0:
                c[9] = text(Round(th, 3))
                c[10] = text(-Round(U * th, 1))
                tot["t"] = tot["t"] - U * th
                acc[side + "T"] += -Round(U * th, 1)
            else:
                c[9] = c[10] = "0"
                acc[side + "T"] += tot["t"]
            f["TxtTotTheta"] = text(Round(tot["t"], 1))
            c[11] = text(vega)
            c[12] = text(Round(U * vega, 1))
            tot["v"] += U * vega
            f["TxtTotVega"] = text(Round(tot["v"], 1))
            acc[side + "V"] += U * vega
            c[13] = text(gam)
            c[14] = text(Round(U * gam, 1))
            tot["g"] += U * gam
            f["TxtTotGamma"] = text(Round(tot["g"], 1))
            acc[side + "G"] += U * gam
        if not self.index:
            for k, name in (("CD", "CallDelta"), ("CG", "CallGamma"), ("CV", "CallVega"), ("CT", "CallTheta"),
                            ("PD", "PutDelta"), ("PG", "PutGamma"), ("PV", "PutVega"), ("PT", "PutTheta")):
                f["Txt" + name] = text(acc[k])

    def fill_index_row(self, c, S, K, U, sigma, days, call):
        m = self.im
        m.d1d2(S, K, self.r, sigma, days)
        vega = m.vega(S, days)
        gam = m.gamma(S, sigma, days)
        price = m.price(S, K, self.r, days, call)
        delta = m.delta(S, K, days, call)
        theta = m.theta(S, K, self.r, sigma, days, True)
        c[4] = text(Round(price, 2))
        c[6] = text(Round(delta * 100, 3))
        c[7] = "0"
        c[8] = text(Round(delta * U, 2))
        c[9] = text(Round(theta, 3))
        c[10] = text(Round(U * theta, 2))
        c[11] = text(Round(vega, 3))
        c[12] = text(Round(U * vega, 3))
        c[13] = text(Round(gam, 3))
        c[14] = text(Round(U * gam, 3))

    def hedge_text(self, call_row, H):
        buy = val(self.f["txtdelneutral"]) > 0
        word = ("BUY  " if buy else "SELL  ") if call_row else ("SELL  " if buy else "BUY  ")
        return word + text(H)

    def click(self, row):
        f, c = self.f, self.g[row]
        # Unlike the fill, the click stops on a "0" of days as well.
        if f["TxtMktPrice"] in ("", "0") or f["TxtDays"] in ("", "0") or f["TxtImpVol"] in ("", "0"):
            return
        self.active = row
        K = float(c[0])
        self.option_value = float(c[4])
        f["TxtDelPts"] = c[6]
        S, days, r = float(f["TxtMktPrice"]), float(f["TxtDays"]), self.r
        call = c[1] == "C"
        if self.index:
            sig = float(f["TxtImpVol" if call else "TxtImpVolP"]) / 100
            self.im.d1d2(S, K, r, sig, days)
            G, V = self.im.gamma(S, sig, days), self.im.vega(S, days)
            Th = self.im.theta(S, K, r, sig, days, call)
        else:
            C = val(f["TxtContract"])
            f["TxtDelCon"] = text(-(val(f["TxtDelPts"]) * C / 100))
            f["TxtThetaCon"] = text(-(C * val(c[9])))
            f["TxtVegaConn"] = text(C * val(c[11]))
            f["TxtGamCon"] = text(C * val(c[13]))
            sC = float(f["TxtImpVol"]) / 100
            G, V = gamma_stock(S, K, r, sC, days), vega_stock(S, K, r, sC, days)
            Th = theta_stock(S, K, r, sC, days, call, self.option_value)
        f["TxtDelPts"] = c[6].strip()
        if val(f["TxtDelPts"]) == 0:
            f["TxtDelPts" if call else "TxtDelHed"] = " "
        else:
            f["TxtDelHed"] = self.hedge_text(call, Round(val(f["txtdelneutral"]) / (val(f["TxtDelPts"]) / 100), 2))
        for name, x in (("Gam", G), ("Vega", V), ("The", Th)):
            f["Txt%sPts" % name] = text(x)
            f["Txt%sHed" % name] = " " if x == 0 else self.hedge_text(call, Round(val(f["txtdelneutral"]) / x / 100, 2))
        if not self.index:
            vols = [r_["Field2"] for r_ in self.L.rows
                    if r_.get("Strike") == K and r_["CP"] == c[1] and r_.get("Field2") is not None]
            f["TxtAvgVol"] = text(Round(sum(vols) / len(vols), 2)) if vols else "0"
            c[15] = f["TxtAvgVol"].strip()

    # ---- ledger procedures ----

    def update_tracker(self):
        for row in range(2, self.last_row() + 1):
            c = self.g[row]
            if c[2].strip() == "" or round(float(c[2])) == 0:
                continue
            for r_ in self.L.rows:
                if r_.get("Strike") == float(c[0]) and r_["CP"] == c[1]:
                    r_.update(Last=float(c[4]), Vol=float(c[5]), Delta=float(c[6]), DumThVal=float(c[7]))

    def opt(self, r_):
        return r_["CP"] != "S"

    def calc_r_option(self):
        acc = 0.0
        for k, cp in self.L.series(self.opt):
            one = lambda r_, k=k, cp=cp: r_.get("Strike") == k and r_["CP"] == cp
            if round(self.L.total(one, lambda r_: r_["Units"]) or 0) == 0:
                acc += self.L.total(one, lambda r_: mul(r_["Units"], r_.get("Last")) - r_["Units"] * r_["Traded"]
                                    if r_.get("Last") is not None else None) or 0
        self.f["TxtOptR"] = text(Round(acc, 0))

    def calc_delta_neutral(self):
        tot_delta = self.L.total(self.opt, lambda r_: mul(-r_["Units"], r_.get("Delta")) / 100
                                 if r_.get("Delta") is not None else None) or 0
        tot_stocks = self.L.total(lambda r_: r_["CP"] == "S", lambda r_: r_["Units"]) or 0
        if self.index or val(self.f["TxtDays"]) != 0:
            self.f["txtdelneutral"] = text(Round(tot_delta - tot_stocks, 2))
        else:
            self.f["txtdelneutral"] = text(Round(val(self.f["TxtTotDel"]) - val(self.f["TxtFutLots"]), 2))

    def calc_premium(self):
        s = 0.0
        for row in range(2, self.last_row() + 1):
            c = self.g[row]
            if c[2] != "":
                s = s - val(c[2]) * val(c[3])
        self.f["TxtPremium"] = text(Round(s, 0))

    def calc_option_r(self):
        s = self.L.total(self.opt, lambda r_: mul(r_["Units"], r_.get("Last"))) or 0
        self.f["TxtOptU"] = text(Round(s, 0))

    def calc_future_r(self):
        f = self.f
        if f["TxtFutLots"].strip() == "":
            f["TxtFutLots"] = "0"
        if f["TxtFutTrade"].strip() == "":
            f["TxtFutTrade"] = "0"
        f["TxtFutU"] = text(Round((float(f["TxtMktPrice"]) - float(f["TxtFutTrade"])) * round(float(f["TxtFutLots"])), 0))

    def calc_sheet_greeks(self):
        f = self.f
        dv = gv = vv = tv = 0.0
        S, days, r = float(f["TxtMktPrice"]), float(f["TxtDays"]), self.r
        for row in range(2, self.last_row() + 1):
            c = self.g[row]
            U = float(c[2]) if c[2] != "" else 0.0
            if U == 0:
                continue
            K = float(c[0])
            call = c[1] == "C"
            if self.index:
                sig = float(c[5]) / 100
                if val(f["TxtDays"]) == 0 and S != K:
                    dv += val(c[6]) * U / 100
                gv += self.im.gamma(S, sig, days) * U
                vv += self.im.vega(S, days) * U
                tv -= abs(self.im.theta(S, K, r, sig, days, call)) * U
            else:
                sC = float(f["TxtImpVol"]) / 100
                dv += val(c[6]) * U / 100
                gv += gamma_stock(S, K, r, sC, days) * U
                vv += vega_stock(S, K, r, sC, days) * U
                tv = tv - abs(theta_stock(S, K, r, sC, days, call, self.option_value)) * U
        f["TxtDelVal"], f["TxtGamVal"] = text(Round(dv, 1)), text(Round(gv, 1))
        f["TxtVegaVal"], f["TxtTheVal"] = text(Round(vv, 3)), text(Round(tv, 3))
        if self.index:
            f["TxtDelCon"], f["TxtGamCon"] = text(Round(dv, 2)), text(Round(gv, 2))

    def amount(self, name):
        t = self.f[name].strip()
        return 0.0 if t == "" else float(t)

    def calc_balance(self):
        names = ("TxtPremium", "TxtComm", "TxtCashU", "TxtCashR", "TxtFutU", "TxtFutR", "TxtOptU", "TxtOptR")
        s = 0.0
        for n in names:
            s += self.amount(n)
        self.f["TxtBalance"] = text(Round(s, 0))

    def theta_bal(self):
        tot_last = Round(self.L.total(self.opt, lambda r_: mul(r_["Units"], r_.get("DumThVal"))) or 0, 2)
        closed = 0.0
        for k, cp in self.L.series():
            if k is None:
                continue  # a strike the ledger does not hold matches no row
            one = lambda r_, k=k, cp=cp: r_.get("Strike") == k and r_["CP"] == cp
            if (self.L.total(one, lambda r_: r_["Units"]) or 0) == 0:
                closed += self.L.total(one, lambda r_: mul(r_["Units"], r_.get("DumThVal")) - r_["Units"] * r_["Traded"]
                                       if r_.get("DumThVal") is not None else None) or 0
        tomorrow = (self.amount("TxtComm") + self.amount("TxtPremium") + self.amount("TxtCashU") + self.amount("TxtCashR")
                    + self.amount("TxtFutU") + self.amount("TxtFutR") + tot_last + closed)
        if val(self.f["TxtDays"]) > 0:
            self.f["TxtTheVal"] = text(-Round(val(self.f["TxtBalance"]) - tomorrow, 2))
        else:
            self.f["TxtTheVal"] = "0"

    def tot_exposure(self):
        fut = abs(self.L.total(lambda r_: r_["CP"] == "S" and r_.get("CashType") == "F", lambda r_: r_["Units"]) or 0)
        short = 0.0
        for row in range(2, self.last_row() + 1):
            c = self.g[row]
            if c[2] != "" and val(c[2]) < 0:
                short += abs(val(c[2]))
        self.f["TxtEx_Magin"] = text(Round((short + fut) * val(self.f["TxtMktPrice"]) * self.ex / 100, 2))

    def refresh(self):
        f = self.f
        self.fill()
        self.click(self.active)
        if self.index:
            self.calc_r_option()
            self.update_tracker()
            self.calc_delta_neutral()
            self.calc_premium()
            self.calc_option_r()
            self.calc_future_r()
            self.calc_sheet_greeks()
            self.calc_balance()
            return
        self.update_tracker()
        self.calc_r_option()
        self.calc_delta_neutral()
        self.calc_premium()
        self.calc_option_r()
        self.calc_future_r()
        self.calc_sheet_greeks()
        self.calc_balance()
        self.theta_bal()
        self.tot_exposure()
        f["TxtGamVal"] = f["TxtTotGamma"]
        f["TxtVegaVal"] = f["TxtTotVega"]

    def scenarios(self):
        """Up1, Up2, Dn1, Dn2: price and balance."""
        f = self.f
        S = float(f["TxtMktPrice"])
        prices = [S + S * 0.1, S + S * 0.2, S - S * 0.1, S - S * 0.2]
        out = []
        days = float(f["TxtDays"])
        for P in prices:
            sc = sp = 0.0  # each walk starts with neither side's sigma
            opt = 0.0
            fut = Round((P - val(f["TxtFutTrade"])) * val(f["TxtFutLots"]), 0)
            for row in range(2, self.last_row() + 1):
                c = self.g[row]
                K = float(c[0])
                U = float(c[2] or "0")
                call = c[1] == "C"
                if call:
                    sc = float(f["TxtImpVol"]) / 100
                else:
                    sp = float(f["TxtImpVolP"]) / 100
                half = 180 if (K <= P and sc <= 0.5 and sp <= 0.5) else 183.2
                T = days * 0.5 / half
                if T > 0:
                    if self.index:
                        # The closed form's own 3 decimals, no tree rounding on top.
                        sig = sc if call else sp
                        self.im.d1d2(P, K, self.r, sig, days)
                        v = self.im.price(P, K, self.r, days, call)
                    else:
                        v = Round(tree(P, K, T, self.r, sc if call else sp, 0.1, 100, call)[0], 2)
                    opt += v * U
            bal = Round(val(f["TxtPremium"]) + opt + val(f["TxtComm"]) + val(f["TxtOptR"]) + val(f["TxtFutR"]) + fut, 0)
            out.append((P, bal))
        return out


# ---- the scenarios of the tests --------------------------------------------------------------
# Each is a saved sheet as the tests write it into the store; the sheet opens on 23-Nov-2026.

def stock_ledger():
    return Ledger([
        dict(Strike=960.0, CP="P", Units=-4, Traded=3.0, Last=2.0, Delta=-20.0, DumThVal=1.9, Field2=33.0),
        dict(Strike=960.0, CP="P", Units=-2, Traded=2.5, Last=2.0, Delta=-20.0, DumThVal=1.9, Field2=33.0),
        dict(Strike=980.0, CP="C", Units=10, Traded=20.0, Last=18.0, Delta=60.0, DumThVal=17.0, Field2=29.0),
        dict(Strike=980.0, CP="C", Units=5, Traded=23.0, Last=18.0, Delta=60.0, DumThVal=17.0, Field2=31.0),
        dict(Strike=1000.0, CP="P", Units=-8, Traded=15.0, Last=14.0, Delta=-45.0, DumThVal=13.2, Field2=32.0),
        dict(Strike=1020.0, CP="C", Units=6, Traded=5.0, Last=7.0, Delta=30.0, DumThVal=6.5, Field2=30.0),
        dict(Strike=1020.0, CP="C", Units=-6, Traded=9.0, Last=7.0, Delta=30.0, DumThVal=6.5, Field2=30.0),
        dict(Strike=None, CP="S", Units=3, Traded=995.0, CashType="F"),
        dict(Strike=None, CP="S", Units=2, Traded=990.0, CashType="Q"),
    ])


def stock_ladder(more_held=None):
    # Strike, CP, units, traded, last, vol, delta, DumThVal as the saved ladder holds them.
    held = {(960, "P"): ("-6", "2.83"), (980, "C"): ("15", "21"), (1000, "P"): ("-8", "15")}
    held.update(more_held or {})
    rows = []
    for k in (960, 980, 1000, 1020, 1040):
        for cp in ("C", "P"):
            u, t = held.get((k, cp), ("0", "0"))
            rows.append([str(k), cp, u, t, "1", "25", "50", "0.9"])
    return rows


# The per-contract, points and hedge fields as a save leaves them: a click that does not run
# keeps them so.
CLICKED = ["TxtDelCon", "TxtThetaCon", "TxtVegaConn", "TxtGamCon", "TxtDelHed", "TxtGamHed", "TxtVegaHed",
           "TxtTheHed", "TxtDelPts", "TxtGamPts", "TxtVegaPts", "TxtThePts", "TxtAvgVol"]


def saved_clicked(f, index=False):
    f.update({n: "" for n in CLICKED if not (index and n in ("TxtThetaCon", "TxtVegaConn", "TxtAvgVol"))})
    f.update(TxtDelPts="44.44", TxtGamPts="11.11")


def stock_fields(price, days, put_vol="32"):
    names = ["TxtSymbol", "TxtMktPrice", "TxtDays", "TxtImpVol", "TxtImpVolP", "TxtContract", "TxtFutLots",
             "TxtFutTrade", "TxtComm", "TxtCashU", "TxtCashR", "TxtFutR", "TxtOptR", "TxtPremium",
             "txtdelneutral", "TxtTotDel", "TxtBalance"]
    f = {n: "" for n in names}
    saved_clicked(f)
    f.update(TxtSymbol="RILK2026", TxtMktPrice=price, TxtDays=days, TxtImpVol="30", TxtImpVolP=put_vol,
             TxtContract="250", TxtFutLots="5", TxtFutTrade="993.8", TxtComm="-150", TxtCashU="40",
             TxtCashR="-25", TxtFutR="0", txtdelneutral="3")
    return f


def index_ledger():
    return Ledger([
        dict(Strike=5900.0, CP="P", Units=-25, Traded=60.0, Last=55.0, Delta=-30.0, DumThVal=54.0, Field2=22.0),
        dict(Strike=6000.0, CP="C", Units=50, Traded=120.0, Last=110.0, Delta=55.0, DumThVal=108.0, Field2=20.0),
        dict(Strike=6100.0, CP="C", Units=10, Traded=80.0, Last=70.0, Delta=40.0, DumThVal=69.0, Field2=20.0),
        dict(Strike=6100.0, CP="C", Units=-10, Traded=95.0, Last=70.0, Delta=40.0, DumThVal=69.0, Field2=20.0),
        dict(Strike=None, CP="S", Units=2, Traded=6010.0, CashType="F"),
    ])


def index_ladder():
    held = {(5900, "P"): ("-25", "60"), (6000, "C"): ("50", "120")}
    rows = []
    for k in (5800, 5900, 6000, 6100, 6200):
        for cp in ("C", "P"):
            u, t = held.get((k, cp), ("0", "0"))
            rows.append([str(k), cp, u, t, "1", "20", "50", "0.9"])
    return rows


def index_fields(price, days):
    f = {n: "" for n in ["TxtSymbol", "TxtMktPrice", "TxtDays", "TxtImpVol", "TxtImpVolP", "TxtFutLots",
                         "TxtFutTrade", "TxtComm", "TxtCashU", "TxtCashR", "TxtFutR", "TxtOptR", "TxtPremium",
                         "txtdelneutral", "TxtBalance"]}
    saved_clicked(f, index=True)
    f.update(TxtSymbol="NIFX2026", TxtMktPrice=price, TxtDays=days, TxtImpVol="20", TxtImpVolP="22",
             TxtFutLots="2", TxtFutTrade="6010", TxtComm="-80", TxtCashU="0", TxtCashR="0", TxtFutR="0",
             txtdelneutral="-4")
    return f


SCENARIOS = {
    "StockLive": lambda: Sheet(stock_fields("1010", "17"), stock_ladder(), stock_ledger(), 0.07, 250, 5),
    "StockExpiry": lambda: Sheet(stock_fields("1000", "0"), stock_ladder(), stock_ledger(), 0.07, 250, 5),
    "IndexLive": lambda: Sheet(index_fields("6050", "17"), index_ladder(), index_ledger(), 0.08, index=True),
    "IndexExpiry": lambda: Sheet(index_fields("6100", "0"), index_ladder(), index_ledger(), 0.08, index=True),
    # A put volatility above 50 % and a call held on the lowest strike: the scenarios' first row
    # counts on 180, its walk starting with no put sigma.
    "StockHighPutVol": lambda: Sheet(stock_fields("1070", "17", "55"), stock_ladder({(960, "C"): ("40", "50")}),
                                     stock_ledger(), 0.07, 250, 5),
}

SHOWN = ["TxtDays", "TxtImpVolP", "TxtTotDel", "TxtTotGamma", "TxtTotVega", "TxtTotTheta", "TxtCallDelta",
         "TxtCallGamma", "TxtCallVega", "TxtCallTheta", "TxtPutDelta", "TxtPutGamma", "TxtPutVega", "TxtPutTheta",
         "TxtDelPts", "TxtDelCon", "TxtThetaCon", "TxtVegaConn", "TxtGamCon", "TxtDelHed", "TxtGamPts",
         "TxtGamHed", "TxtVegaPts", "TxtVegaHed", "TxtThePts", "TxtTheHed", "TxtAvgVol", "txtdelneutral",
         "TxtPremium", "TxtOptU", "TxtOptR", "TxtFutU", "TxtDelVal", "TxtGamVal", "TxtVegaVal", "TxtTheVal",
         "TxtBalance", "TxtEx_Magin"]


SCENARIO_INPUTS = ["TxtImpVolP", "TxtPremium", "TxtOptR", "TxtFutR"]


def main():
    print("#pragma once")
    print("// The expected figures of the sheet tests, printed by sheet_figures.py beside this file:")
    print("//     python3 tests/core/sheet/sheet_figures.py > tests/core/sheet/SheetFigures.h")
    print("// For each saved sheet of SheetScenarios.h, after the opening refresh: the fields, the ladder")
    print("// rows 2 to 11 (columns 1 to 16), and the four scenario prices and balances of a save.")
    print("#include <utility>")
    print("")
    print("namespace tallimark::test::figures {")
    for name, make in SCENARIOS.items():
        s = make()
        s.refresh()
        print("")
        print("inline const std::pair<const char*, const char*> k%sFields[] = {" % name)
        # The sheets added for the scenario walks show the figures the scenarios start from.
        for n in SHOWN if name in ("StockLive", "StockExpiry", "IndexLive", "IndexExpiry") else SCENARIO_INPUTS:
            if n in s.f:
                print('    {"%s", "%s"},' % (n, s.f[n]))
        print("};")
        print("inline const char* const k%sLadder[10][16] = {" % name)
        for row in s.g[2:]:
            print("    {%s}," % ", ".join('"%s"' % c for c in row))
        print("};")
        scen = s.scenarios()
        print("inline const double k%sUpPrices[4] = {%s};" % (name, ", ".join(text(p) for p, _ in scen)))
        print("inline const double k%sUpBalances[4] = {%s};" % (name, ", ".join(text(b) for _, b in scen)))
    print("")
    print("} // namespace tallimark::test::figures")


if __name__ == "__main__":
    main()
