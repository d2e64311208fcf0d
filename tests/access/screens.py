"""Every screen in the states that a user meets, and the script commands that lead there from the one
before."""

SCREENS = [
    ("start", []),
    ("start, typed statistics", [
        "click DesOpt", "type NameTxB press", "type SampSizTxB 12", "type GMTxB 1",
        "type GSDTxB 2"]),
    ("start, to be modified", ["click OriModiCmd"]),
    ("start, a new series", [
        "answer yes", "menu Menuclose", "menu MenuNewVkrFil", "type NameTxB weld"]),
    ("raw data", [
        "answer yes", "menu Menuclose", "file welding_fume.vkr", "menu menuopen"]),
    ("raw data, an empty row", ["cell 2 none"]),
    ("raw data, detection range", ["undo", "click DetecChB", "type DetecLTxb 0.7"]),
    ("limits", ["tab grenzen", "type VkrValTxB 5"]),
    ("descriptive statistics, detection range", ["tab descript"]),
    ("probability paper", ["tab plot"]),
    ("probability paper, both limits", ["menu MenuLowLim", "menu MenuUpLim"]),
    ("inverse plot", ["key Ctrl+Shift+D", "menu MenuInvPlot"]),
    ("tests", ["key Ctrl+Shift+D", "tab extrapolation"]),
    ("Leidel", ["click LeidelCmb"]),
    ("Wilks", ["click WilksCmb"]),
    ("sample size", ["click SampSizeCkb"]),
    ("EN 689", ["click SampSizeCkb", "click TuggleCmb"]),
    ("picture of a test", ["menu MenuVerd"]),
    ("mean", ["menu Menuclose", "tab mean"]),
    ("Jahr", ["click JahrCmb"]),
    ("Land", ["click LandCmb"]),
    ("picture of the mean", ["menu MenuVerd"]),
    ("comparison", ["menu Menuclose", "answer yes", "tab Compare"]),
    ("comparison, calculated", [
        "answer no", "type SampSizTxB2 15", "answer no", "type GMTxB2 2.2", "answer no",
        "type GSDTxB2 1.8"]),
]

# What must be called by these names on a screen: a field by its label and its unit as both stand
# there, a closed tab as one.
NAMES = {
    "raw data, an empty row": ["Limits, closed"],
    "raw data, detection range": ["Lower limit LOQ, mg/m3", "Upper Limit UL, mg/m3"],
    "limits": [
        "Occupational Exposure Limit Value OELV, mg/m3", "Cover U, %", "Confidence D, %"],
    "mean": ["AM unbiased, mg/m3"],
    "comparison": ["Reference sample size Mref", "Reference sample location GMref, mg/m3"],
}
