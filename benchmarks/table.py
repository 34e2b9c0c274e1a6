"""Figures as they are printed: the ratio first, the milliseconds beside it."""


def percentile(values, share):
    ordered = sorted(values)
    return ordered[min(len(ordered) - 1, int(share * len(ordered)))]


def milliseconds(values):
    p50, p95, p99 = (percentile(values, share) * 1000 for share in (0.50, 0.95, 0.99))
    return f"p50 {p50:.1f}, p95 {p95:.1f}, p99 {p99:.1f} ms (n={len(values)})"


def ratios(values, others, shares=(0.50, 0.95)):
    """How many times as long as others, percentile by percentile."""
    if not values or not others:
        return "not seen"
    return ", ".join(f"p{share * 100:.0f} {percentile(values, share) / percentile(others, share):.2f}" for share in shares)


class Table:
    """Rows are shown as soon as they are known; at the end each once, with the middle one and the worst of all runs."""

    def __init__(self):
        self._rows = {}
        self.remark = ""

    def add(self, what, goal, figure, beside="", size=0.0):
        """`size` is what runs are compared by; the largest is the worst."""
        what += self.remark
        self._rows.setdefault((what, goal), []).append((size, figure, beside))
        print(f"  {what}: {figure}   {beside}", flush=True)

    def compare(self, what, goal, values, others, names):
        """Times against those of something else that were measured in turn with them."""
        is_seen = bool(values and others)
        self.add(what, goal, ratios(values, others),
                 "; ".join(f"{name} {milliseconds(some)}" for name, some in zip(names, (values, others)) if some),
                 percentile(values, 0.95) / percentile(others, 0.95) if is_seen else float("inf"))

    def show(self):
        rows = [("what", "to reach", "middle", "worst", "beside the worst")]
        for (what, goal), runs in self._rows.items():
            ordered = sorted(runs)
            _, figure, beside = ordered[-1]
            rows.append((what, goal, ordered[len(ordered) // 2][1], figure, f"{beside} ({len(runs)} runs)"))
        widths = [max(len(row[column]) for row in rows) for column in range(5)]
        print()
        for row in rows:
            print("  ".join(f"{cell:{width}}" for cell, width in zip(row, widths)).rstrip())
