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
    """Rows are shown as soon as they are known, and all together at the end."""

    def __init__(self):
        self._rows = []
        self.remark = ""

    def add(self, what, goal, figure, beside=""):
        what += self.remark
        self._rows.append((what, goal, figure, beside))
        print(f"  {what}: {figure}   {beside}", flush=True)

    def compare(self, what, goal, values, others, names):
        """Times against those of something else that were measured in turn with them."""
        self.add(what, goal, ratios(values, others),
                 "; ".join(f"{name} {milliseconds(some)}" for name, some in zip(names, (values, others)) if some))

    def show(self):
        head = ("what", "to reach", "measured", "beside it")
        widths = [max(len(row[column]) for row in [*self._rows, head]) for column in range(4)]
        print()
        for row in [head, *self._rows]:
            print("  ".join(f"{cell:{width}}" for cell, width in zip(row, widths)).rstrip())
