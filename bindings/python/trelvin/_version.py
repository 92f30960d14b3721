# Generated from include/trelvin/calling.h by tools/generate.py.
__version__ = "1.1.1"
