"""What goes wrong, in words for the author."""


class Problem(Exception):
    """A sentence with cause and remedy; the tool prints it and ends with code."""

    def __init__(self, sentence, code=1):
        super().__init__(sentence)
        self.code = code
