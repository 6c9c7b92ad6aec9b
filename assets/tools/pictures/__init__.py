# SPDX-License-Identifier: MIT
"""The pictures of the program, drawn from one set of parts in one style."""
