class PracticeFailed(Exception):
    """The practice run did not do what it is for; the text says why, in one line."""
