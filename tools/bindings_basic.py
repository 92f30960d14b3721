def text(families, version): return ""
