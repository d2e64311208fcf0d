"""The order of the eye: from left to right within a line, then the next line; a column beside is read
when the one before it has been."""


def is_right_of(box, other):
    return box[0] >= other[0] + other[2]


def is_below(box, other):
    return box[1] >= other[1] + other[3]


def goes_back(before, after):
    """Whether the eye would have to go back from `before` to `after`."""
    if is_right_of(after, before):
        return False  # further on in the line, or the top of the next column
    if is_below(after, before):
        return False
    inside = before[0] <= after[0] and before[1] <= after[1]
    return not inside  # a part of what was just met, as the bar in a picture


def order_faults(stops):
    """`stops`: what Tab reaches, in its order, beginning anywhere."""
    if not stops:
        return
    boxes = [each.place for each in stops]
    first = min(range(len(boxes)), key=lambda i: (boxes[i][1], boxes[i][0]))
    for i in range(len(stops) - 1):
        before, after = (first + i) % len(stops), (first + i + 1) % len(stops)
        if goes_back(boxes[before], boxes[after]):
            yield f"Tab goes back from {stops[before]} to {stops[after]}"
