#!/usr/bin/env python3
"""Writes the strength library seed and a picture for every exercise.

    python3 tools/make_strength_seed.py [--no-images] [--only TEXT]

Writes data/seed/library_strength.sql (muscle groups, equipment, exercises and stretches with
their muscle groups, sample workouts and their sets) and data/images/ex_<name>.gif for each
exercise: our own drawing of a figure in the start and the end position of the movement, with
the equipment, labelled with the exercise's name, 240x180. The figures are posed from a small set
of movement patterns (squat, hinge, lunge, press, push-up, pull, row, curl, raise, crunch,
plank, jump, stretch poses ...) mapped to the exercises in EXERCISES.

Standard library only, plus ImageMagick's `convert` (Magick Vector Graphics in, GIF out) and the
DejaVu Sans Bold font (Debian's fonts-dejavu-core).
"""
import argparse
import math
import os
import re
import subprocess
import tempfile

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))

# ---------------------------------------------------------------------------------------------
# Drawing: a side-view stick figure facing right, two panels (start, end) and a caption
# ---------------------------------------------------------------------------------------------

W, H = 240, 180
GROUND = 150
T, TH, SH, UA, FA, NECK, HEADR = 38, 31, 31, 21, 20, 10, 7
NEAR, FAR, EQUIP, PLATE = '#1f3a5f', '#9fb3cf', '#3b3b3b', '#b5452f'
FONT = '/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf'

def d(a):
    r = math.radians(a)
    return (math.sin(r), math.cos(r))

def add(p, a, l):
    v = d(a)
    return (p[0] + v[0] * l, p[1] + v[1] * l)

def ik(root, target, a, b, bend):
    dx, dy = target[0] - root[0], target[1] - root[1]
    dist = math.hypot(dx, dy)
    dist = max(abs(a - b) + 0.5, min(a + b - 0.3, dist))
    base = math.atan2(dy, dx)
    alpha = math.acos(max(-1, min(1, (a * a + dist * dist - b * b) / (2 * a * dist))))
    c = [(root[0] + a * math.cos(base + s * alpha), root[1] + a * math.sin(base + s * alpha)) for s in (1, -1)]
    key = {'f': lambda p: -p[0], 'b': lambda p: p[0], 'u': lambda p: p[1], 'd': lambda p: -p[1]}[bend]
    mid = min(c, key=key)
    end = (mid[0] + b * math.cos(math.atan2(target[1] - mid[1], target[0] - mid[0])),
           mid[1] + b * math.sin(math.atan2(target[1] - mid[1], target[0] - mid[0])))
    return mid, end

def body(p):
    """Joints of a pose: hip, torso angle t, feet and hands as targets, bends."""
    hip = p['hip']
    sh = add(hip, p.get('t', 180), T)
    head = add(sh, p.get('head', p.get('t', 180)), NECK + HEADR - 2)
    j = {'hip': hip, 'sh': sh, 'head': head}
    j['knee'], j['foot'] = ik(hip, p['foot'], TH, SH, p.get('kb', 'f'))
    j['knee2'], j['foot2'] = ik(hip, p.get('foot2', p['foot']), TH, SH, p.get('kb2', p.get('kb', 'f')))
    j['elb'], j['hand'] = ik(sh, p['hand'], UA, FA, p.get('eb', 'b'))
    j['elb2'], j['hand2'] = ik(sh, p.get('hand2', p['hand']), UA, FA, p.get('eb2', p.get('eb', 'b')))
    return j

class Canvas:
    def __init__(self):
        self.cmds = []
    def off(self, pt, ox):
        return '%.1f,%.1f' % (pt[0] + ox, pt[1])
    def line(self, a, b, ox, color, w):
        self.cmds += ["stroke '%s'" % color, 'stroke-width %g' % w, 'fill none',
                      'line %s %s' % (self.off(a, ox), self.off(b, ox))]
    def poly(self, pts, ox, color, w):
        self.cmds += ["stroke '%s'" % color, 'stroke-width %g' % w, 'fill none',
                      'polyline ' + ' '.join(self.off(q, ox) for q in pts)]
    def circle(self, c, r, ox, stroke, fill, w=2):
        self.cmds += ["stroke '%s'" % stroke, 'stroke-width %g' % w, "fill '%s'" % fill,
                      'circle %s %s' % (self.off(c, ox), self.off((c[0] + r, c[1]), ox))]
    def rect(self, a, b, ox, stroke, fill, w=1.5):
        self.cmds += ["stroke '%s'" % stroke, 'stroke-width %g' % w, "fill '%s'" % fill,
                      'rectangle %s %s' % (self.off(a, ox), self.off(b, ox))]

def plate(cv, c, ox, r=10):
    cv.circle(c, r, ox, '#7a2a1c', PLATE, 1.5)
    cv.circle(c, 2.2, ox, EQUIP, EQUIP, 1)

def dumbbell(cv, c, ox, vertical=False):
    if vertical:
        cv.line((c[0], c[1] - 7), (c[0], c[1] + 7), ox, EQUIP, 3)
        cv.line((c[0] - 4, c[1] - 7), (c[0] + 4, c[1] - 7), ox, EQUIP, 5)
        cv.line((c[0] - 4, c[1] + 7), (c[0] + 4, c[1] + 7), ox, EQUIP, 5)
    else:
        cv.line((c[0] - 7, c[1]), (c[0] + 7, c[1]), ox, EQUIP, 3)
        cv.line((c[0] - 7, c[1] - 4), (c[0] - 7, c[1] + 4), ox, EQUIP, 5)
        cv.line((c[0] + 7, c[1] - 4), (c[0] + 7, c[1] + 4), ox, EQUIP, 5)

def kettlebell(cv, c, ox):
    cv.circle((c[0], c[1] + 3), 3.5, ox, EQUIP, 'none', 2)
    cv.circle((c[0], c[1] + 11), 6.5, ox, EQUIP, EQUIP, 1)

def draw_equipment(cv, eq, j, ox, when):
    """eq items: (kind, args...). Items drawn behind the figure when when=='back'."""
    for item in eq:
        kind, args = item[0], item[1:]
        behind = kind in ('beam', 'bench', 'box', 'pullbar', 'bars', 'ball', 'seat', 'pad', 'wall', 'mat', 'step', 'cable')
        if (when == 'back') != behind:
            continue
        if kind == 'barbell':
            plate(cv, j['hand'], ox)
        elif kind == 'bar_back':
            plate(cv, (j['sh'][0] + d(j_t(j) - 90)[0] * 7 + d(j_t(j))[0] * -3, j['sh'][1] + d(j_t(j) - 90)[1] * 7 + d(j_t(j))[1] * -3), ox, 9)
        elif kind == 'beam':
            x0, y0, x1, y1, w = args
            cv.line((x0, y0), (x1, y1), ox, '#8c8c8c', w)
        elif kind == 'sled':
            f = j['foot']
            cv.line((f[0] - 9, f[1] - 9), (f[0] + 9, f[1] + 9), ox, '#555', 6)
        elif kind == 'hipbar':
            plate(cv, (j['hip'][0] + 2, j['hip'][1] - 8), ox)
        elif kind == 'ezbar':
            plate(cv, j['hand'], ox, 7)
        elif kind == 'db':
            dumbbell(cv, j['hand'], ox, args[0] if args else False)
        elif kind == 'kb':
            kettlebell(cv, j['hand'], ox)
        elif kind == 'mball':
            cv.circle(j['hand'], 7, ox, '#5b3a1a', '#a0703a', 1.5)
        elif kind == 'handle':
            cv.line((j['hand'][0], j['hand'][1] - 4), (j['hand'][0], j['hand'][1] + 4), ox, EQUIP, 3)
        elif kind == 'rope':
            cv.line(args[0], j['hand'], ox, '#8a6d3b', 2)
        elif kind == 'band':
            cv.line(args[0], j['hand'], ox, '#2e8b57', 2.5)
        elif kind == 'cable':
            p = args[0]
            cv.rect((p[0] - 3, 10), (p[0] + 3, GROUND), ox, '#888', '#cfcfcf', 1)
            cv.circle(p, 3.5, ox, EQUIP, '#fff', 1.5)
            cv.line(p, j['hand'], ox, '#555', 1.2)
        elif kind == 'bench':
            x0, x1, y = args
            cv.rect((x0, y), (x1, y + 5), ox, '#555', '#8c8c8c', 1)
            cv.line(((x0 + 6), y + 5), ((x0 + 6), GROUND), ox, '#666', 3)
            cv.line(((x1 - 6), y + 5), ((x1 - 6), GROUND), ox, '#666', 3)
        elif kind == 'incline':
            pass
        elif kind == 'seat':
            x0, x1, y = args[:3]
            cv.rect((x0, y), (x1, y + 5), ox, '#555', '#8c8c8c', 1)
            cv.line(((x0 + x1) / 2, y + 5), ((x0 + x1) / 2, GROUND), ox, '#666', 3)
            if len(args) > 3:  # back rest
                bx, top = args[3], args[4]
                cv.line((bx, y), (bx, top), ox, '#8c8c8c', 5)
        elif kind == 'pad':
            x0, y0, x1, y1 = args
            cv.rect((x0, y0), (x1, y1), ox, '#555', '#8c8c8c', 1)
        elif kind == 'box':
            x0, x1, y = args
            cv.rect((x0, y), (x1, GROUND), ox, '#6b4f2a', '#c49a6c', 1.5)
        elif kind == 'step':
            x0, x1, y = args
            cv.rect((x0, y), (x1, GROUND), ox, '#555', '#9a9a9a', 1.2)
        elif kind == 'pullbar':
            y = args[0]
            cv.line((8, y), (108, y), ox, EQUIP, 3)
            cv.line((10, y), (10, GROUND), ox, '#888', 3)
            cv.line((106, y), (106, GROUND), ox, '#888', 3)
        elif kind == 'bars':
            x0, x1, y = args
            cv.line((x0, y), (x1, y), ox, EQUIP, 3)
            cv.line((x0 + 4, y), (x0 + 4, GROUND), ox, '#888', 3)
            cv.line((x1 - 4, y), (x1 - 4, GROUND), ox, '#888', 3)
        elif kind == 'ball':
            c, r = args
            cv.circle(c, r, ox, '#3a6ea5', '#a8c8ea', 1.5)
        elif kind == 'wall':
            x = args[0]
            cv.rect((x, 20), (x + 6, GROUND), ox, '#777', '#bbbbbb', 1)
        elif kind == 'mat':
            x0, x1 = args
            cv.rect((x0, GROUND - 2), (x1, GROUND + 1), ox, '#4a7a4a', '#7fb37f', 1)

def j_t(j):
    dx, dy = j['sh'][0] - j['hip'][0], j['sh'][1] - j['hip'][1]
    return math.degrees(math.atan2(dx, dy))

def draw_figure(cv, p, ox):
    j = body(p)
    eq = p.get('eq', [])
    draw_equipment(cv, eq, j, ox, 'back')
    # far limbs first, lighter
    cv.poly([j['hip'], j['knee2'], j['foot2']], ox, FAR, 5)
    cv.poly([j['sh'], j['elb2'], j['hand2']], ox, FAR, 4.5)
    cv.line(j['foot2'], foot_tip(j['knee2'], j['foot2'], p.get('toe2', p.get('toe'))), ox, FAR, 4)
    cv.line(j['hip'], j['sh'], ox, NEAR, 7)
    cv.circle(j['head'], HEADR, ox, NEAR, NEAR, 1)
    cv.poly([j['hip'], j['knee'], j['foot']], ox, NEAR, 5.5)
    cv.line(j['foot'], foot_tip(j['knee'], j['foot'], p.get('toe')), ox, NEAR, 4.5)
    cv.poly([j['sh'], j['elb'], j['hand']], ox, NEAR, 5)
    draw_equipment(cv, eq, j, ox, 'front')
    return j

def foot_tip(knee, foot, toe):
    if toe is None:
        toe = 90
    return add(foot, toe, 7)

def render(name, poses, path, tmpdir):
    cv = Canvas()
    head = ['viewbox 0 0 %d %d' % (W, H), "fill '#ffffff'", 'rectangle 0,0 %d,%d' % (W, H),
            'stroke-linecap round', 'stroke-linejoin round']
    cv.cmds += head
    for i, p in enumerate(poses):
        ox = 2 + i * 120
        cv.rect((2, 4), (114, GROUND + 4), ox, '#e2e6ec', '#f6f8fb', 1)
        cv.line((4, GROUND + 1.5), (112, GROUND + 1.5), ox, '#b9c0ca', 2)
        draw_figure(cv, p, ox)
    # arrow from start to end
    cv.cmds += ["stroke '#c0c6cf'", 'stroke-width 2', "fill '#c0c6cf'",
                'polygon 116,74 124,80 116,86']
    size = 12 if len(name) <= 30 else max(8, int(12 * 30 / len(name)))
    cv.cmds += ['stroke none', "fill '#1b1b1b'", "font '%s'" % FONT, 'font-size %d' % size,
                'text-anchor middle', 'text 120,%d "%s"' % (H - 7, name.replace('"', ''))]
    mvg = os.path.join(tmpdir, 'fig.mvg')
    with open(mvg, 'w') as f:
        f.write('\n'.join(cv.cmds) + '\n')
    subprocess.run(['/usr/bin/convert' if os.path.exists('/usr/bin/convert') else 'convert',
                    'mvg:' + mvg, '-colors', '64', path], check=True)

# ---------------------------------------------------------------------------------------------
# Movement patterns: each gives the start and the end pose, given the equipment
# ---------------------------------------------------------------------------------------------


def S(hip, t=180):
    return add(hip, t, T)

def stand(**kw):
    p = dict(hip=(52, 88), t=180, foot=(54, GROUND), hand=(56, 91), eb='f')
    p.update(kw)
    return p

def grip(eq, p):
    """Equipment held in the hands, by kind."""
    m = {'barbell': [('barbell',)], 'db': [('db',)], 'kb': [('kb',)], 'mball': [('mball',)],
         'ezbar': [('ezbar',)], 'cable': [('handle',)], 'band': [('handle',)]}
    p.setdefault('eq', [])
    p['eq'] = p['eq'] + m.get(eq, [])
    return p

def squat(eq):
    a, b = stand(foot=(58, GROUND)), dict(hip=(34, 116), t=148, foot=(58, GROUND))
    for p in (a, b):
        s = S(p['hip'], p['t'])
        if eq in ('barbell', 'machine'):
            p['hand'], p['eb'], p['eq'] = (s[0] - 5, s[1] + 3), 'd', [('bar_back',)]
        elif eq == 'front':
            p['hand'], p['eb'], p['eq'] = (s[0] + 7, s[1] - 1), 'f', [('barbell',)]
        elif eq in ('db', 'kb', 'mball'):
            p['hand'], p['eb'] = (s[0] + 10, s[1] + 12), 'd'
            grip({'db': 'db', 'kb': 'kb', 'mball': 'mball'}[eq], p)
            if eq == 'db':
                p['eq'] = [('db', True)]
        else:
            p['hand'], p['eb'] = (s[0] + 40, s[1] + 4), 'd'
    return a, b

def hinge(eq, kind='deadlift'):
    up = stand(foot=(56, GROUND))
    if kind == 'deadlift':
        low = dict(hip=(32, 110), t=116, foot=(56, GROUND))
    else:  # romanian
        low = dict(hip=(38, 88), t=104, foot=(53, GROUND), kb='f')
    s = S(low['hip'], low['t'])
    low['hand'] = (s[0] - 2, s[1] + 41)
    if eq == 'back':
        for p in (up, low):
            s = S(p['hip'], p['t'])
            p['hand'], p['eb'], p['eq'] = (s[0] - 5, s[1] + 3), 'd', [('bar_back',)]
        return up, low
    if eq == 'body':
        for p in (up, low):
            s = S(p['hip'], p['t'])
            p['hand'] = (s[0] + 40, s[1] + 2) if p is low else (s[0] + 3, s[1] + 41)
        return up, low
    grip(eq, up), grip(eq, low)
    return (low, up) if kind == 'deadlift' else (up, low)

def swing(eq):
    low = dict(hip=(32, 108), t=122, foot=(56, GROUND), hand=(46, 124), eb='f')
    s = S((52, 88))
    up = stand(foot=(56, GROUND), hand=(s[0] + 40, s[1] + 6), eb='d')
    return grip(eq, low), grip(eq, up)

def lunge(eq):
    a = stand(foot=(58, GROUND))
    b = dict(hip=(50, 110), t=180, foot=(82, GROUND), foot2=(12, GROUND - 2), kb2='d', toe2=135)
    for p in (a, b):
        s = S(p['hip'], p['t'])
        if eq == 'barbell':
            p['hand'], p['eb'], p['eq'] = (s[0] - 5, s[1] + 3), 'd', [('bar_back',)]
        elif eq in ('db', 'kb'):
            p['hand'] = (s[0] + 3, s[1] + 41)
            grip(eq, p)
        else:
            p['hand'], p['eb'] = (s[0] + 4, s[1] + 30), 'b'
    return a, b

def stepup(eq):
    box = ('box', 62, 104, 122)
    a = dict(hip=(46, 96), t=172, foot=(74, 122), foot2=(42, GROUND), eq=[box])
    b = dict(hip=(76, 62), t=180, foot=(80, 122), foot2=(72, 122), eq=[box])
    for p in (a, b):
        s = S(p['hip'], p['t'])
        p['hand'] = (s[0] + 3, s[1] + 41)
        grip(eq, p)
    return a, b

def bench(eq, angle='flat', move='press'):
    if angle == 'incline':
        base = dict(hip=(40, 118), t=124, foot=(10, GROUND), kb='u',
                    eq=[('bench', 26, 92, 123), ('pad', 40, 84, 47, 123)])
    else:
        base = dict(hip=(40, 119), t=90, foot=(10, GROUND), kb='u', eq=[('bench', 26, 96, 124)])
    s = S(base['hip'], base['t'])
    up = dict(base, hand=(s[0] + (6 if angle == 'incline' else 2), s[1] - 41), eb='d')
    if move == 'press':
        down = dict(base, hand=(s[0] - 4, s[1] - 14), eb='d')
    elif move == 'fly':
        down = dict(base, hand=(s[0] - 2, s[1] + 28), eb='f')
    elif move == 'pullover':
        down = dict(base, hand=(s[0] + 38, s[1] + 4), eb='u')
    else:  # lying triceps extension
        down = dict(base, hand=(s[0] + 12, s[1] - 10), eb='u')
    up['eq'], down['eq'] = list(base['eq']), list(base['eq'])
    g = {'barbell': 'barbell', 'db': 'db', 'ezbar': 'ezbar', 'machine': 'barbell', 'kb': 'kb'}.get(eq)
    if g:
        grip(g, up), grip(g, down)
    return up, down

def press(eq, seated=''):
    if seated:
        base = dict(hip=(44, 112), t=180, foot=(74, GROUND), kb='u', eq=[('seat', 30, 60, 117, 32, 70)])
    else:
        base = stand()
    s = S(base['hip'], base['t'])
    a = dict(base, hand=(s[0] + 9, s[1] + 1), eb='d', eq=list(base['eq']) if 'eq' in base else [])
    b = dict(base, hand=(s[0] + 2, s[1] - 40), eb='f', eq=list(a['eq']))
    if eq == 'machine':
        eq = 'cable'
    grip(eq, a), grip(eq, b)
    return a, b

def raise_(eq, kind='front'):
    a = stand()
    s = S(a['hip'])
    if kind == 'front':
        b = stand(hand=(s[0] + 41, s[1]), eb='d')
    elif kind == 'upright':
        a = stand()
        b = stand(hand=(s[0] + 8, s[1] + 6), eb='u')
    elif kind == 'shrug':
        b = stand(hip=(52, 86), foot=(54, GROUND), hand=(56, 86))
    else:  # lateral: arm out to the side, seen from the side it reaches forward and up a little
        b = stand(hand=(s[0] + 34, s[1] - 6), eb='d', hand2=(s[0] + 30, s[1] - 2))
    if eq == 'cable':
        a['eq'] = b['eq'] = [('cable', (100, 140))]
    grip(eq, a), grip(eq, b)
    return a, b

def curl(eq):
    a = stand(hand=(57, 91), eb='b')
    b = stand(hand=(62, 54), eb='b')
    if eq == 'cable':
        a['eq'], b['eq'] = [('cable', (100, 142))], [('cable', (100, 142))]
    if eq == 'band':
        a['eq'], b['eq'] = [('band', (56, 148))], [('band', (56, 148))]
    grip(eq, a), grip(eq, b)
    return a, b

def pushdown(eq):
    a = stand(hand=(72, 64), eb='b', eq=[('cable', (100, 14))])
    b = stand(hand=(60, 91), eb='b', eq=[('cable', (100, 14))])
    grip(eq if eq != 'rope' else 'cable', a), grip(eq if eq != 'rope' else 'cable', b)
    return a, b

def overhead_ext(eq):
    a = stand(hand=(44, 40), eb='u')
    b = stand(hand=(55, 10), eb='f')
    grip(eq, a), grip(eq, b)
    return a, b

def kickback(eq):
    base = dict(hip=(42, 96), t=112, foot=(56, GROUND), foot2=(30, GROUND))
    s = S(base['hip'], base['t'])
    a = dict(base, hand=(s[0] - 2, s[1] + 24), eb='u')
    b = dict(base, hand=(s[0] - 40, s[1] + 4), eb='u')
    grip(eq, a), grip(eq, b)
    return a, b

def pushup(eq, kind='full'):
    a = dict(hip=(56, 116), t=112, foot=(2, 146), kb='d', hand=(92, GROUND), eb='b', toe=135)
    b = dict(hip=(60, 135), t=96, foot=(2, 146), kb='d', hand=(94, GROUND), eb='u', toe=135)
    if kind == 'knee':
        a = dict(hip=(56, 118), t=118, foot=(12, 146), kb='d', hand=(90, GROUND), eb='b', toe=180)
        b = dict(hip=(58, 132), t=100, foot=(14, 146), kb='d', hand=(90, GROUND), eb='u', toe=180)
    if kind == 'clap':
        a = b
        b = dict(hip=(56, 110), t=115, foot=(3, 146), hand=(100, 112), eb='b', toe=135)
    if eq == 'ball':
        for p in (a, b):
            p['eq'] = [('ball', (12, 134), 14)]
            p['foot'] = (12, 120)
    return a, b

def dip(eq):
    bars = ('bars', 30, 86, 92)
    a = dict(hip=(52, 90), t=180, foot=(34, 122), kb='f', hand=(56, 93), eb='b', eq=[bars])
    b = dict(hip=(50, 110), t=168, foot=(32, 142), kb='f', hand=(56, 93), eb='b', eq=[bars])
    if eq == 'bench':
        bench = ('bench', 4, 40, 112)
        a = dict(hip=(42, 92), t=178, foot=(98, GROUND), kb='u', hand=(34, 113), eb='b', eq=[bench])
        b = dict(hip=(44, 118), t=172, foot=(98, GROUND), kb='u', hand=(34, 113), eb='b', eq=[bench])
    return a, b

def pull(eq, kind='pullup'):
    if kind in ('pullup', 'chinup'):
        bar = ('pullbar', 30)
        a = dict(hip=(58, 110), t=180, foot=(38, 140), kb='f', hand=(60, 31), eb='f', eq=[bar])
        b = dict(hip=(58, 78), t=180, foot=(38, 108), kb='f', hand=(62, 31), eb='f', eq=[bar])
        return a, b
    if kind == 'pulldown':
        base = dict(hip=(44, 112), t=174, foot=(76, GROUND), kb='u', eq=[('seat', 30, 62, 117), ('pad', 56, 92, 84, 97), ('cable', (62, 10))])
        a = dict(base, hand=(58, 32), eb='f')
        b = dict(base, hand=(60, 72), eb='d')
        grip('cable', a), grip('cable', b)
        return a, b
    if kind == 'inverted':
        bar = ('bars', 78, 112, 98)
        a = dict(hip=(46, 126), t=100, foot=(4, 142), hand=(88, 98), eb='d', eq=[bar], toe=170)
        b = dict(hip=(46, 110), t=108, foot=(4, 142), hand=(88, 98), eb='d', eq=[bar], toe=170)
        return a, b

def row(eq, kind='bent'):
    if kind == 'seated':
        base = dict(hip=(28, 138), t=176, foot=(86, 146), kb='u', eq=[('cable', (110, 126))])
        a = dict(base, hand=(70, 120), eb='d')
        b = dict(base, hand=(42, 114), eb='u')
        grip('cable', a), grip('cable', b)
        return a, b
    base = dict(hip=(38, 100), t=116, foot=(56, GROUND))
    s = S(base['hip'], base['t'])
    a = dict(base, hand=(s[0] - 2, s[1] + 40), eb='b')
    b = dict(base, hand=(s[0] - 8, s[1] + 20), eb='u')
    if kind == 'onearm':
        base['eq'] = [('bench', 60, 112, 112)]
        a['eq'], b['eq'] = list(base['eq']), list(base['eq'])
        a['hand2'] = b['hand2'] = (s[0] + 14, 112)
    if eq == 'machine':
        eq = 'cable'
        a['eq'] = b['eq'] = [('cable', (110, 120))]
    grip(eq, a), grip(eq, b)
    return a, b

def facepull(eq):
    a = stand(hand=(92, 50), eb='d', eq=[('cable', (112, 46))])
    b = stand(hand=(62, 40), eb='u', eq=[('cable', (112, 46))])
    grip('cable', a), grip('cable', b)
    return a, b

def legext(eq, kind='extension'):
    base = dict(hip=(40, 110), t=184, kb='u', hand=(46, 112), eb='b', eq=[('seat', 26, 62, 115, 28, 64)])
    if kind == 'extension':
        a, b = dict(base, foot=(68, 142)), dict(base, foot=(102, 104))
    elif kind == 'curl':
        a, b = dict(base, foot=(102, 106)), dict(base, foot=(58, 140))
    else:  # press: reclined on the seat, the feet drive the sled up its rails
        base = dict(hip=(40, 124), t=215, kb='u', hand=(48, 128), eb='d',
                    eq=[('beam', 44, 130, 10, 84, 6), ('beam', 22, 129, 58, 129, 5),
                        ('beam', 50, 131, 50, GROUND, 3), ('beam', 58, 146, 112, 92, 2)])
        a = dict(base, foot=(66, 104), toe=45)
        b = dict(base, foot=(84, 84), toe=45)
        for p in (a, b):
            p['eq'] = base['eq'] + [('sled',)]
        return a, b
    a['eq'] = b['eq'] = base['eq']
    return a, b

def calf(eq, seated=''):
    if seated:
        base = dict(hip=(40, 112), t=180, kb='u', hand=(66, 108), eb='d',
                    eq=[('seat', 26, 58, 117), ('step', 62, 90, 140)])
        return dict(base, foot=(72, 141), toe=110), dict(base, foot=(72, 135), toe=45)
    st = ('step', 40, 84, 140)
    a = stand(hip=(56, 78), foot=(58, 140), toe=110, eq=[st])
    b = stand(hip=(56, 71), foot=(58, 133), toe=45, eq=[st])
    a['hand'], b['hand'] = (60, 81), (60, 74)
    grip(eq, a), grip(eq, b)
    return a, b

def crunch(eq, kind='crunch'):
    base = dict(hip=(42, 143), foot=(12, 147), kb='u', eq=[('mat', 2, 112)])
    if kind == 'crunch':
        a = dict(base, t=92, hand=(88, 132), eb='u')
        b = dict(base, t=118, hand=(80, 106), eb='u', head=125)
    elif kind == 'situp':
        a = dict(base, t=92, hand=(82, 140), eb='u')
        b = dict(base, t=168, hand=(36, 112), eb='f')
    elif kind == 'twist':
        base = dict(hip=(44, 142), t=150, foot=(88, 124), kb='u', eq=[('mat', 2, 112)])
        a = dict(base, hand=(70, 118), eb='d')
        b = dict(base, hand=(58, 134), eb='d')
        grip(eq, a), grip(eq, b)
    elif kind == 'legraise':
        base = dict(hip=(54, 143), t=92, hand=(54, 146), eb='u', eq=[('mat', 2, 112)])
        a = dict(base, hip=(57, 143), foot=(-4, 145), kb='u', toe=180)
        b = dict(base, hip=(57, 143), foot=(50, 83), kb='f', toe=120)
    elif kind == 'hanging':
        bar = ('pullbar', 24)
        a = dict(hip=(58, 102), t=180, foot=(58, 150), hand=(60, 25), eb='f', eq=[bar])
        b = dict(hip=(54, 102), t=186, foot=(104, 102), hand=(60, 25), eb='f', eq=[bar])
    elif kind == 'bicycle':
        a = dict(base, t=116, foot=(20, 118), foot2=(-4, 136), kb2='u', hand=(82, 104), eb='u')
        b = dict(base, t=116, foot=(-4, 136), foot2=(20, 118), hand=(82, 104), eb='u')
    elif kind == 'bridge':
        a = dict(base, t=90, hip=(40, 143), foot=(14, 148), hand=(88, 146), eb='d')
        b = dict(base, t=74, hip=(40, 132), foot=(14, 148), hand=(84, 147), eb='d')
        if eq == 'barbell':
            for p in (a, b):
                p['eq'] = p['eq'] + [('hipbar',)]
    return a, b

def plank(eq, kind='plank'):
    ready = dict(hip=(52, 128), t=118, foot=(10, 146), kb='d', hand=(84, GROUND), eb='u', toe=180)
    hold = dict(hip=(54, 128), t=100, foot=(2, 146), hand=(108, 147), eb='u', toe=135)
    if kind == 'climber':
        a = dict(hip=(56, 116), t=112, foot=(3, 146), foot2=(3, 146), hand=(92, GROUND), eb='b', toe=135)
        b = dict(a, foot=(66, 140), kb='d')
        return a, b
    if kind == 'birddog':
        base = dict(hip=(40, 112), t=92, foot=(8, 146), kb='d', hand=(78, GROUND), eb='f', toe=180)
        return base, dict(base, foot2=(-20, 110), kb2='d', hand2=(116, 100))
    return ready, hold

def jump(eq, kind='squat'):
    crouch = dict(hip=(34, 116), t=148, foot=(58, GROUND), hand=(30, 130), eb='f')
    air = stand(hip=(54, 70), foot=(56, 132), hand=(70, 18), eb='f', toe=45)
    if kind == 'box':
        crouch['eq'] = [('box', 74, 112, 124)]
        air = stand(hip=(92, 62), foot=(94, 124), hand=(100, 72), eb='d', eq=[('box', 74, 112, 124)])
    elif kind == 'broad':
        air = dict(hip=(66, 86), t=140, foot=(96, 120), kb='u', hand=(112, 60), eb='f')
    elif kind == 'tuck':
        air = dict(hip=(52, 86), t=176, foot=(56, 110), kb='f', hand=(76, 92), eb='d')
    elif kind == 'burpee':
        crouch = dict(hip=(56, 116), t=112, foot=(3, 146), hand=(92, GROUND), eb='b', toe=135)
    elif kind == 'slam':
        crouch = stand(hand=(56, 8), eb='f')
        air = dict(hip=(38, 108), t=126, foot=(58, GROUND), hand=(78, 136), eb='f')
        grip('mball', crouch), grip('mball', air)
    elif kind == 'wallball':
        crouch = dict(hip=(34, 116), t=148, foot=(58, GROUND), hand=(62, 82), eb='d')
        air = stand(hand=(60, 10), eb='f')
        grip('mball', crouch), grip('mball', air)
    elif kind == 'lunge':
        crouch = dict(hip=(50, 110), t=180, foot=(82, GROUND), foot2=(12, GROUND - 2), kb2='d', toe2=135,
                      hand=(70, 100), hand2=(36, 100))
        air = dict(hip=(52, 72), t=180, foot=(40, 128), kb='d', foot2=(76, 132), kb2='f', hand=(40, 92), hand2=(72, 84))
    return crouch, air

def carry(eq):
    a = stand(hand=(56, 91))
    b = stand(hip=(54, 88), foot=(72, GROUND), foot2=(34, GROUND), hand=(58, 91), toe2=60)
    grip(eq, a), grip(eq, b)
    return a, b

def woodchop(eq):
    a = stand(hand=(88, 18), eb='f', eq=[('cable', (108, 12))])
    b = dict(hip=(44, 100), t=150, foot=(58, GROUND), hand=(70, 128), eb='f', eq=[('cable', (108, 12))])
    grip('cable', a), grip('cable', b)
    return a, b

# stretches: a neutral start, then the hold
def stretch(eq, kind):
    st = stand()
    seated = dict(hip=(30, 142), t=180, foot=(92, 146), hand=(34, 66), eb='f', toe=160, eq=[('mat', 2, 112)])
    if kind == 'toetouch':
        return st, dict(hip=(46, 88), t=62, foot=(56, GROUND), hand=(60, 146), eb='f')
    if kind == 'sitreach':
        return seated, dict(seated, t=118, hand=(94, 138), eb='u')
    if kind == 'quad':
        return st, stand(foot2=(34, 96), kb2='d', hand2=(30, 96), eb2='b', hand=(78, 40))
    if kind == 'calf':
        w = ('wall', 100)
        return stand(eq=[w]), dict(hip=(52, 94), t=158, foot=(74, GROUND), foot2=(16, GROUND), kb2='f',
                                   hand=(98, 62), eb='d', eq=[w])
    if kind == 'hipflexor':
        return st, dict(hip=(46, 112), t=186, foot=(84, GROUND), foot2=(4, 146), kb2='d', toe2=180,
                        hand=(52, 110), eb='b')
    if kind == 'child':
        kneel = dict(hip=(40, 108), t=180, foot=(10, 147), kb='d', hand=(44, 110), eb='b', toe=180,
                     eq=[('mat', 2, 112)])
        return kneel, dict(hip=(38, 128), t=72, foot=(28, 148), kb='f', hand=(112, 147), eb='d', toe=180,
                           eq=[('mat', 2, 112)])
    if kind == 'cobra':
        lie = dict(hip=(60, 143), t=96, foot=(2, 146), hand=(94, 146), eb='u', toe=180, eq=[('mat', 2, 112)])
        return lie, dict(lie, t=128, hand=(92, 146), eb='b')
    if kind == 'catcow':
        base = dict(hip=(40, 112), t=90, foot=(8, 146), kb='d', hand=(78, GROUND), eb='f', toe=180)
        return dict(base, head=140, t=84), dict(base, head=40, t=96)
    if kind == 'downdog':
        return (dict(hip=(56, 116), t=112, foot=(12, 146), hand=(92, GROUND), eb='b', toe=135),
                dict(hip=(44, 94), t=45, foot=(14, 148), hand=(92, 148), eb='b', toe=100))
    if kind == 'crossbody':
        return st, stand(hand=(70, 58), eb='f', hand2=(62, 66), eb2='d')
    if kind == 'triceps':
        return st, stand(hand=(46, 42), eb='u', hand2=(62, 30), eb2='f')
    if kind == 'chest':
        w = ('wall', 10)
        return stand(eq=[w]), stand(hand=(18, 46), eb='d', eq=[w])
    if kind == 'overhead':
        return st, stand(hand=(50, 8), eb='f', hand2=(54, 8))
    if kind == 'neck':
        return st, stand(head=150, hand=(64, 42), eb='d')
    if kind == 'twist':
        return (dict(seated, hand=(60, 120), eb='d'),
                dict(seated, foot2=(60, 142), kb2='u', hand=(8, 140), eb='d', hand2=(66, 124)))
    if kind == 'figure4':
        base = dict(hip=(42, 143), t=92, foot=(12, 147), kb='u', hand=(70, 140), eb='d', eq=[('mat', 2, 112)])
        return base, dict(base, foot=(12, 100), foot2=(40, 112), kb2='u', hand=(46, 110), eb='d')
    if kind == 'butterfly':
        seat = dict(hip=(34, 142), t=176, foot=(70, 146), kb='u', hand=(66, 140), eb='d', toe=180,
                    eq=[('mat', 2, 112)])
        return seat, dict(seat, t=150, foot=(62, 146), hand=(66, 144))
    if kind == 'lunge_reach':
        return st, dict(hip=(48, 112), t=150, foot=(84, GROUND), foot2=(4, 146), kb2='d', toe2=180,
                        hand=(86, 148), eb='f', hand2=(96, 30), eb2='f')
    if kind == 'sidebend':
        return st, stand(t=192, hand=(26, 20), eb='f', hand2=(30, 22))
    raise KeyError(kind)

PATTERNS = {
    'squat': squat, 'hinge': hinge, 'swing': swing, 'lunge': lunge, 'stepup': stepup, 'bench': bench,
    'press': press, 'raise': raise_, 'curl': curl, 'pushdown': pushdown, 'overhead_ext': overhead_ext,
    'kickback': kickback, 'pushup': pushup, 'dip': dip, 'pull': pull, 'row': row, 'facepull': facepull,
    'legmachine': legext, 'calf': calf, 'crunch': crunch, 'plank': plank, 'jump': jump, 'carry': carry,
    'woodchop': woodchop, 'stretch': stretch,
}

# ---------------------------------------------------------------------------------------------
# Exercises: name | major muscle group | type | equipment | main lift | Perc_Lift | levels
#            (B, I, A) | pattern and its arguments | description | instruction | further groups
# ---------------------------------------------------------------------------------------------
EXERCISES = """
Back Squat|Quadriceps|Free Weights|Barbell|Squat|75|BIA|squat barbell|The basic lower-body lift: a barbell on the upper back, hips and knees bend together to full depth.|Bar on the upper back, feet shoulder width. Sit down between the heels until the thighs are parallel, chest up, knees over toes. Drive up through the whole foot.|Glutes,Hamstrings,Lower Back
Front Squat|Quadriceps|Free Weights|Barbell|Squat|60|IA|squat front|Squat with the bar racked on the front of the shoulders; keeps the torso upright and loads the thighs.|Bar on the front shoulders, elbows high. Squat straight down keeping the elbows up and the back upright, then stand.|Glutes,Abdominals
Goblet Squat|Quadriceps|Free Weights|Dumbbell|Squat|25|BI|squat db|A dumbbell held at the chest teaches an upright squat.|Hold one dumbbell upright against the chest. Squat between the knees, elbows inside the knees at the bottom, and stand.|Glutes
Kettlebell Goblet Squat|Quadriceps|Free Weights|Kettlebell|Squat|25|BI|squat kb|Goblet squat holding a kettlebell by the horns.|Hold the kettlebell by the horns at the chest. Squat to full depth with the chest up and stand.|Glutes
Body Weight Squat|Quadriceps|Free Weights|Body Weight||0|BI|squat body|Squat without load, arms forward for balance.|Feet shoulder width, arms reaching forward. Sit back and down to parallel, then stand tall.|Glutes,Hamstrings
Smith Machine Squat|Quadriceps|Machine|Smith Machine|Squat|70|BI|squat machine|Squat with the bar guided by the machine's rails.|Bar on the upper back, feet slightly forward. Squat to parallel and press back up; set the safety stops first.|Glutes
Hack Squat|Quadriceps|Machine|Machine|Squat|80|IA|legmachine machine press|Machine squat on an inclined sled, back against the pad.|Shoulders under the pads, feet mid-platform. Lower until the knees are bent 90 degrees, then press up without locking the knees.|Glutes
Leg Press|Quadriceps|Machine|Machine|Squat|99|BIA|legmachine machine press|Pressing a weighted sled with the legs while seated.|Feet shoulder width on the plate. Lower until the knees reach the chest comfortably, press back without locking the knees.|Glutes,Hamstrings
Leg Extension|Quadriceps|Machine|Machine|Squat|30|BIA|legmachine machine extension|Knee extension on a machine; works the front of the thigh alone.|Sit with the pad on the lower shins. Straighten the knees fully, pause, lower under control.|
Walking Lunge|Quadriceps|Free Weights|Dumbbell|Squat|15|IA|lunge db|Alternating forward lunges across the floor with a dumbbell in each hand.|Step forward and lower the back knee toward the floor, front knee over the ankle. Push through the front heel and step into the next lunge.|Glutes,Hamstrings
Barbell Lunge|Quadriceps|Free Weights|Barbell|Squat|35|IA|lunge barbell|Forward lunge with a barbell on the upper back.|Bar on the back, step forward and lower the back knee to just above the floor. Push back to standing; alternate legs.|Glutes,Hamstrings
Reverse Lunge|Quadriceps|Free Weights|Dumbbell|Squat|15|BIA|lunge db|Stepping backward into the lunge; easier on the knees.|Step one foot back and lower the back knee. Drive through the front foot to return to standing.|Glutes
Body Weight Lunge|Quadriceps|Free Weights|Body Weight||0|BI|lunge body|Lunge without load, hands on the hips.|Step forward, lower the back knee toward the floor, push back to the start. Alternate legs.|Glutes
Bulgarian Split Squat|Quadriceps|Free Weights|Dumbbell|Squat|15|IA|lunge db|Single-leg squat with the rear foot raised on a bench.|Rear foot on a bench, front foot far forward. Lower straight down until the front thigh is parallel, then stand.|Glutes
Step-up|Quadriceps|Free Weights|Dumbbell|Squat|15|BIA|stepup db|Stepping onto a box or bench with dumbbells in hand.|Place one foot on the box and step up until the leg is straight. Step down with control; alternate legs.|Glutes
Deadlift|Lower Back|Free Weights|Barbell|Deadlift|75|IA|hinge barbell|The barbell is lifted from the floor to the hips with a flat back.|Feet under the bar, grip just outside the legs. Flat back, chest up; push the floor away and stand tall, then lower the bar along the legs.|Glutes,Hamstrings,Traps,Forearms
Sumo Deadlift|Glutes|Free Weights|Barbell|Deadlift|75|A|hinge barbell|Deadlift with a wide stance and the hands inside the knees.|Wide stance, toes out, grip inside the knees. Keep the chest up and push the knees out as you stand up with the bar.|Quadriceps,Hamstrings,Lower Back
Romanian Deadlift|Hamstrings|Free Weights|Barbell|Deadlift|55|IA|hinge barbell rdl|A hip hinge with nearly straight legs that stretches and loads the hamstrings.|Stand holding the bar. Push the hips back, knees soft, sliding the bar down the thighs to mid-shin; keep the back flat and return.|Glutes,Lower Back
Dumbbell Romanian Deadlift|Hamstrings|Free Weights|Dumbbell|Deadlift|20|BIA|hinge db rdl|Romanian deadlift holding a dumbbell in each hand.|Hold the dumbbells in front of the thighs. Hinge at the hips with a flat back until you feel the hamstrings, then stand.|Glutes
Stiff-Legged Deadlift|Hamstrings|Free Weights|Barbell|Deadlift|50|IA|hinge barbell rdl|Hinge from the floor with the knees almost locked.|Keep the legs nearly straight, lower the bar toward the floor with a flat back and return by driving the hips forward.|Lower Back,Glutes
Trap Bar Deadlift|Quadriceps|Free Weights|Barbell|Deadlift|80|BIA|hinge barbell|Deadlift inside a hexagonal bar; the load stays at the body's sides.|Stand inside the bar, grip the handles, flat back. Stand up by pushing the floor away and lower under control.|Glutes,Hamstrings,Lower Back
Kettlebell Deadlift|Hamstrings|Free Weights|Kettlebell|Deadlift|25|B|hinge kb|Deadlift of a kettlebell between the feet; a first step to hinging.|Kettlebell between the feet, hips back, flat back. Grip and stand up, squeezing the glutes, then lower.|Glutes,Lower Back
Good Morning|Hamstrings|Free Weights|Barbell|Squat|30|IA|hinge back|A hip hinge with the bar on the upper back.|Bar on the back, knees soft. Push the hips back, lowering the chest toward parallel with a flat back, then return.|Lower Back,Glutes
Kettlebell Swing|Glutes|Free Weights|Kettlebell|Deadlift|20|BIA|swing kb|A ballistic hip hinge that swings the kettlebell to chest height.|Hike the bell between the legs, then snap the hips forward so the bell floats to chest height. Let it fall back and hinge again.|Hamstrings,Lower Back,Shoulders
Hip Thrust|Glutes|Free Weights|Barbell|Squat|60|IA|crunch barbell bridge|Hip extension with the upper back on a bench and a bar across the hips.|Shoulders on a bench, bar over the hips, feet flat. Drive the hips up until the body is straight from knees to shoulders, pause, lower.|Hamstrings
Glute Bridge|Glutes|Free Weights|Body Weight||0|BI|crunch body bridge|Lifting the hips from the floor while lying on the back.|Lie on the back, knees bent, feet flat. Squeeze the glutes and lift the hips until the body is straight from knees to shoulders; lower slowly.|Hamstrings,Lower Back
Lying Leg Curl|Hamstrings|Machine|Machine|Deadlift|25|BIA|legmachine machine curl|Knee flexion on a machine for the back of the thigh.|Pad just above the heels. Curl the heels toward the glutes, pause, and lower slowly without lifting the hips.|Calves
Seated Leg Curl|Hamstrings|Machine|Machine|Deadlift|25|BIA|legmachine machine curl|Seated knee flexion against a pad.|Sit with the pad behind the ankles and the thigh pad snug. Curl the legs down and back, then return slowly.|
Nordic Hamstring Curl|Hamstrings|Free Weights|Body Weight||0|A|plank body|Kneeling, the body is lowered forward by the hamstrings alone.|Kneel with the ankles held. Keep the body straight from the knees and lower forward as slowly as possible; catch with the hands and push back.|Glutes
Standing Calf Raise|Calves|Machine|Machine|Squat|60|BIA|calf machine|Rising onto the toes against a load on the shoulders.|Balls of the feet on the edge of the block. Lower the heels for a stretch, then rise as high as possible and pause.|
Seated Calf Raise|Calves|Machine|Machine|Squat|35|BIA|calf machine seated|Calf raise seated with a pad on the knees, which works the deep calf muscle.|Knees under the pad, balls of the feet on the block. Lower the heels, then push up onto the toes and pause.|
Dumbbell Calf Raise|Calves|Free Weights|Dumbbell|Squat|20|BI|calf db|Standing calf raise holding dumbbells.|Stand on a step edge holding the dumbbells. Lower the heels, rise onto the toes, pause at the top.|
Single-Leg Calf Raise|Calves|Free Weights|Body Weight||0|BIA|calf body|Calf raise on one foot.|Stand on one foot on a step, holding a rail for balance. Lower the heel fully and rise as high as possible.|
Hip Adduction Machine|Adductors|Machine|Machine|Squat|35|BI|legmachine machine extension|Squeezing the thighs together against the machine's pads.|Sit with the pads inside the knees. Bring the legs together, pause, and let them open slowly.|
Hip Abduction Machine|Glutes|Machine|Machine|Squat|35|BI|legmachine machine extension|Pressing the thighs apart against the pads.|Sit with the pads outside the knees. Push the legs apart, pause, and return slowly.|
Bench Press|Chest|Free Weights|Barbell|Bench Press|75|BIA|bench barbell|The basic upper-body press: lying on a bench, the bar is lowered to the chest and pressed up.|Eyes under the bar, feet flat, shoulder blades squeezed. Lower the bar to the mid chest and press it back up over the shoulders.|Triceps,Shoulders
Incline Bench Press|Chest|Free Weights|Barbell|Bench Press|65|IA|bench barbell incline|Bench press on a bench inclined 30 to 45 degrees; stresses the upper chest.|Lie on the incline bench, lower the bar to the upper chest and press it up above the chin.|Shoulders,Triceps
Decline Bench Press|Chest|Free Weights|Barbell|Bench Press|75|IA|bench barbell|Bench press with the head lower than the hips.|Hook the feet, lower the bar to the lower chest and press up.|Triceps
Close-Grip Bench Press|Triceps|Free Weights|Barbell|Bench Press|65|IA|bench barbell|Bench press with the hands a shoulder width apart.|Grip at shoulder width, elbows close to the body. Lower to the lower chest and press up.|Chest
Dumbbell Bench Press|Chest|Free Weights|Dumbbell|Bench Press|30|BIA|bench db|Pressing two dumbbells from the chest while lying on a bench.|Dumbbells at the chest, palms forward. Press up until the arms are straight, bringing the bells together; lower slowly.|Triceps,Shoulders
Incline Dumbbell Press|Chest|Free Weights|Dumbbell|Bench Press|25|BIA|bench db incline|Dumbbell press on an incline bench.|On a 30 degree incline, press the dumbbells from the upper chest to straight arms and lower.|Shoulders,Triceps
Dumbbell Fly|Chest|Free Weights|Dumbbell|Bench Press|15|BIA|bench db flat fly|Arms open wide and close over the chest in an arc.|Dumbbells above the chest, elbows slightly bent. Open the arms wide until the chest stretches, then bring them back together.|Shoulders
Incline Dumbbell Fly|Chest|Free Weights|Dumbbell|Bench Press|12|IA|bench db incline fly|Dumbbell fly on an incline bench.|On an incline, open the arms in an arc to a stretch and close them above the chest.|Shoulders
Cable Crossover|Chest|Machine|Cable|Bench Press|15|IA|raise cable front|Bringing the handles of two high cables together in front of the body.|Stand between the stacks, lean slightly forward. Pull the handles down and together in an arc, squeeze, and return.|Shoulders
Chest Press Machine|Chest|Machine|Machine|Bench Press|60|BI|press machine seated|A seated horizontal press on a machine.|Handles at mid chest. Press forward until the arms are straight, then return under control.|Triceps,Shoulders
Pec Deck|Chest|Machine|Machine|Bench Press|30|BI|press machine seated|Seated fly on a machine with arm pads.|Forearms against the pads, bring them together in front of the chest, pause, and open slowly.|Shoulders
Push-up|Chest|Free Weights|Body Weight||0|BIA|pushup body|The classic body-weight press from the floor.|Hands under the shoulders, body straight from head to heels. Lower the chest to a fist's height above the floor and push back up.|Triceps,Shoulders,Abdominals
Knee Push-up|Chest|Free Weights|Body Weight||0|B|pushup body knee|Push-up from the knees; a first step for beginners.|Knees on the floor, body straight from head to knees. Lower the chest to the floor and press back up.|Triceps
Decline Push-up|Chest|Free Weights|Stability Ball||0|IA|pushup ball|Push-up with the feet raised on a ball or bench.|Feet on the ball, hands under the shoulders. Lower the chest and press up, keeping the body straight.|Shoulders,Abdominals
Clap Push-up|Chest|Plyometric|Body Weight||0|A|pushup body clap|Explosive push-up in which the hands leave the floor.|Lower as in a push-up and push so hard that the hands leave the floor; clap and land softly with bent arms.|Triceps,Shoulders
Dumbbell Pullover|Chest|Free Weights|Dumbbell|Bench Press|20|IA|bench db flat pullover|A dumbbell lowered behind the head with nearly straight arms.|Hold one dumbbell over the chest with both hands. Lower it in an arc behind the head, then pull it back over the chest.|Back,Triceps
Parallel Bar Dip|Triceps|Free Weights|Parallel Bars||0|IA|dip body|Lowering and pressing the body between parallel bars.|Support on straight arms. Lower until the upper arms are parallel to the floor, then press back up.|Chest,Shoulders
Bench Dip|Triceps|Free Weights|Bench||0|BI|dip bench|Dip with the hands on a bench behind the body.|Hands on the bench edge, legs forward. Bend the elbows to lower the hips, then press back up.|Chest
Overhead Press|Shoulders|Free Weights|Barbell|Bench Press|55|BIA|press barbell|Pressing the bar overhead while standing.|Bar on the front shoulders, grip just outside them. Press the bar straight up, moving the head back and then through, until the arms lock.|Triceps,Traps
Seated Dumbbell Press|Shoulders|Free Weights|Dumbbell|Bench Press|22|BIA|press db seated|Dumbbell shoulder press on an upright bench.|Sit upright, dumbbells at shoulder height. Press them up until the arms are straight and lower to the shoulders.|Triceps
Arnold Press|Shoulders|Free Weights|Dumbbell|Bench Press|18|IA|press db seated|Dumbbell press that turns the palms from facing in to facing forward.|Start with the dumbbells at the chin, palms in. Press up while turning the palms forward; reverse on the way down.|Triceps
Push Press|Shoulders|Free Weights|Barbell|Bench Press|65|A|press barbell|Overhead press helped by a short dip and drive of the legs.|Dip the knees slightly and drive up, using the legs to start the bar upward; finish the press with the arms.|Triceps,Quadriceps
Shoulder Press Machine|Shoulders|Machine|Machine|Bench Press|45|BI|press machine seated|Seated overhead press on a machine.|Handles at shoulder height, press overhead until the arms are straight and lower slowly.|Triceps
Kettlebell Press|Shoulders|Free Weights|Kettlebell|Bench Press|18|IA|press kb|One-arm press of a kettlebell from the rack position.|Bell in the rack at the shoulder. Press it overhead until the arm locks, then lower to the rack.|Triceps,Abdominals
Lateral Raise|Shoulders|Free Weights|Dumbbell|Bench Press|10|BIA|raise db lateral|Raising the dumbbells out to the sides to shoulder height.|Arms at the sides, elbows slightly bent. Raise the arms out to shoulder height, pause, and lower slowly.|
Front Raise|Shoulders|Free Weights|Dumbbell|Bench Press|10|BIA|raise db front|Raising the dumbbells in front to shoulder height.|Raise the dumbbells forward to eye level with nearly straight arms and lower slowly.|
Cable Lateral Raise|Shoulders|Machine|Cable|Bench Press|8|IA|raise cable lateral|One-arm lateral raise with a low cable.|Stand side-on to the low pulley. Raise the handle out to shoulder height and lower slowly.|
Bent-over Lateral Raise|Shoulders|Free Weights|Dumbbell|Bench Press|8|IA|row db bent|Rear-shoulder raise with the torso bent forward.|Bend forward with a flat back. Raise the dumbbells out to the sides, squeezing the shoulder blades, and lower.|Back
Upright Row|Shoulders|Free Weights|Barbell|Bench Press|35|IA|raise barbell upright|Pulling the bar up along the body to the chest.|Narrow grip. Pull the bar up along the body, elbows leading, to chest height and lower.|Traps
Face Pull|Shoulders|Machine|Cable||0|BIA|facepull cable|Pulling a rope from a high cable toward the face; good for shoulder health.|Rope at face height. Pull toward the forehead, elbows high and wide, and return slowly.|Back,Traps
Barbell Shrug|Traps|Free Weights|Barbell|Deadlift|60|BIA|raise barbell shrug|Lifting the shoulders toward the ears with a bar in the hands.|Hold the bar at arm's length. Shrug the shoulders straight up, pause, and lower.|Forearms
Dumbbell Shrug|Traps|Free Weights|Dumbbell|Deadlift|25|BIA|raise db shrug|Shrug with a dumbbell in each hand.|Dumbbells at the sides. Raise the shoulders toward the ears, hold, and lower.|
Pull-up|Back|Free Weights|Pull-up Bar||0|IA|pull body pullup|Pulling the body up to a bar from a hang, palms forward.|Hang with the hands wider than the shoulders. Pull up until the chin clears the bar, then lower to straight arms.|Biceps,Forearms
Chin-up|Back|Free Weights|Pull-up Bar||0|IA|pull body chinup|Pull-up with the palms facing the body.|Hang with an underhand grip at shoulder width. Pull the chin over the bar and lower fully.|Biceps
Assisted Pull-up|Back|Machine|Machine||0|B|pull machine pullup|Pull-up with a counterweight or band taking part of the body weight.|Kneel on the pad, hands on the bar. Pull up to the bar and lower slowly.|Biceps
Lat Pulldown|Back|Machine|Cable|Bench Press|50|BIA|pull cable pulldown|Pulling a high cable bar down to the chest while seated.|Thighs under the pad, wide grip. Pull the bar to the upper chest, squeezing the shoulder blades, and let it rise slowly.|Biceps
Close-Grip Pulldown|Back|Machine|Cable|Bench Press|45|BIA|pull cable pulldown|Pulldown with a narrow handle.|Hold the narrow handle, lean back slightly and pull to the chest; return slowly.|Biceps
Bent-over Row|Back|Free Weights|Barbell|Deadlift|45|IA|row barbell bent|Rowing the bar to the body with the torso bent forward.|Hinge to about 45 degrees with a flat back. Pull the bar to the lower chest, elbows back, and lower.|Biceps,Lower Back
One-Arm Dumbbell Row|Back|Free Weights|Dumbbell|Deadlift|20|BIA|row db onearm|Rowing one dumbbell with a hand and knee on a bench.|One hand on the bench, back flat. Pull the dumbbell to the hip, then lower to a full stretch.|Biceps
Seated Cable Row|Back|Machine|Cable|Deadlift|40|BIA|row cable seated|Pulling a low cable to the waist while seated.|Sit tall, knees soft. Pull the handle to the waist, shoulders back, and return until the arms are straight.|Biceps
T-Bar Row|Back|Free Weights|Barbell|Deadlift|40|IA|row barbell bent|Rowing one end of a bar that is fixed at the other.|Straddle the bar, hinge forward, pull the handle to the chest and lower.|Biceps,Lower Back
Machine Row|Back|Machine|Machine|Deadlift|40|BI|row machine bent|Seated row on a machine with a chest pad.|Chest on the pad, pull the handles back until the elbows pass the body, then return.|Biceps
Inverted Row|Back|Free Weights|Body Weight||0|BI|pull body inverted|Pulling the chest to a low bar with the body straight beneath it.|Hang under a bar at waist height, heels on the floor. Pull the chest to the bar and lower.|Biceps
Pendlay Row|Back|Free Weights|Barbell|Deadlift|45|A|row barbell bent|A strict row from the floor with the torso parallel to it.|Torso parallel to the floor, bar on the floor. Pull it explosively to the lower chest and set it down each rep.|Lower Back
Straight-Arm Pulldown|Back|Machine|Cable||0|IA|pushdown cable|Pulling a high cable down with straight arms.|Arms straight in front, pull the bar down to the thighs in an arc and return.|Triceps
Back Extension|Lower Back|Free Weights|Bench||0|BIA|hinge body rdl|Raising the torso on a back-extension bench.|Hips on the pad, ankles locked. Lower the torso, then raise it until the body is straight.|Glutes,Hamstrings
Superman|Lower Back|Free Weights|Body Weight||0|B|stretch none cobra|Lying face down and lifting the arms and legs.|Lie face down, arms overhead. Lift arms, chest and legs off the floor, hold two seconds, and lower.|Glutes
Barbell Curl|Biceps|Free Weights|Barbell|Bench Press|30|BIA|curl barbell|Curling the bar from the thighs to the shoulders.|Elbows at the sides, palms up. Curl the bar to the shoulders without swinging and lower slowly.|Forearms
EZ Bar Curl|Biceps|Free Weights|EZ Bar|Bench Press|28|BIA|curl ezbar|Curl with the angled bar; easier on the wrists.|Hold the angled grips, curl the bar up and lower slowly.|Forearms
Dumbbell Curl|Biceps|Free Weights|Dumbbell|Bench Press|12|BIA|curl db|Curling a dumbbell in each hand.|Arms at the sides, palms forward. Curl the dumbbells to the shoulders and lower.|Forearms
Hammer Curl|Biceps|Free Weights|Dumbbell|Bench Press|12|BIA|curl db|Curl with the palms facing each other.|Hold the dumbbells like hammers. Curl them up without turning the wrists, then lower.|Forearms
Preacher Curl|Biceps|Free Weights|EZ Bar|Bench Press|22|IA|curl ezbar|Curl with the upper arms resting on an angled pad.|Upper arms on the pad, curl the bar up and lower until the arms are almost straight.|
Concentration Curl|Biceps|Free Weights|Dumbbell|Bench Press|10|BIA|curl db|Seated one-arm curl with the elbow braced on the thigh.|Sit, elbow on the inner thigh. Curl the dumbbell to the shoulder and lower slowly.|
Cable Curl|Biceps|Machine|Cable|Bench Press|25|BIA|curl cable|Curl from a low cable pulley.|Stand facing the low pulley, curl the bar to the shoulders and lower.|Forearms
Band Curl|Biceps|Free Weights|Resistance Band||0|B|curl band|Curl against a band anchored under the feet.|Stand on the band, curl the handles up and lower slowly.|
Triceps Pushdown|Triceps|Machine|Cable|Bench Press|30|BIA|pushdown cable|Pushing a high cable bar down by straightening the elbows.|Elbows at the sides. Push the bar down until the arms are straight, then let it up to chest height.|
Rope Pushdown|Triceps|Machine|Cable|Bench Press|25|BIA|pushdown rope|Pushdown with a rope, spreading it at the bottom.|Push the rope down, pulling the ends apart at the bottom, and return.|
Lying Triceps Extension|Triceps|Free Weights|EZ Bar|Bench Press|25|IA|bench ezbar flat ext|Lowering the bar to the forehead by bending the elbows while lying.|Arms straight above the shoulders. Bend the elbows to lower the bar to the forehead and extend again.|
Overhead Triceps Extension|Triceps|Free Weights|Dumbbell|Bench Press|15|BIA|overhead_ext db|Lowering a dumbbell behind the head with both hands.|Hold one dumbbell overhead. Lower it behind the head by bending the elbows and extend the arms again.|
Triceps Kickback|Triceps|Free Weights|Dumbbell|Bench Press|8|BI|kickback db|Straightening the arm backward with the torso bent forward.|Upper arm along the body, torso bent. Extend the elbow until the arm is straight behind you, then bend it.|
Diamond Push-up|Triceps|Free Weights|Body Weight||0|IA|pushup body|Push-up with the hands together under the chest.|Form a diamond with the thumbs and index fingers. Lower the chest to the hands and press up.|Chest
Wrist Curl|Forearms|Free Weights|Barbell|Bench Press|15|BIA|curl barbell|Curling the wrists with the forearms on the thighs.|Forearms on the thighs, palms up. Roll the bar down to the fingers and curl the wrists up.|
Reverse Wrist Curl|Forearms|Free Weights|Barbell|Bench Press|10|BIA|curl barbell|Wrist curl with the palms down.|Forearms on the thighs, palms down. Raise the back of the hands and lower.|
Farmer's Walk|Forearms|Free Weights|Dumbbell|Deadlift|35|BIA|carry db|Walking with a heavy weight in each hand.|Pick up heavy dumbbells, stand tall, and walk with short steps for the set distance or time.|Traps,Abdominals,Total Body
Suitcase Carry|Obliques|Free Weights|Kettlebell|Deadlift|25|IA|carry kb|Walking with a weight in one hand only.|Hold one kettlebell at the side, stay upright without leaning, walk, then switch hands.|Forearms
Crunch|Abdominals|Free Weights|Body Weight||0|BIA|crunch body crunch|Curling the shoulders off the floor.|Lie on the back, knees bent. Curl the shoulders up toward the knees, exhale, and lower slowly.|
Sit-up|Abdominals|Free Weights|Body Weight||0|BI|crunch body situp|Raising the whole torso from the floor.|Knees bent, feet anchored. Sit all the way up and lower with control.|Hip Flexors
Bicycle Crunch|Obliques|Free Weights|Body Weight||0|BIA|crunch body bicycle|Crunch that brings each elbow toward the opposite knee.|Hands behind the head, legs raised. Bring one elbow to the opposite knee while extending the other leg; alternate.|Abdominals
Russian Twist|Obliques|Free Weights|Medicine Ball||0|IA|crunch mball twist|Seated twist from side to side with a ball.|Sit leaning back, feet off the floor. Turn the shoulders to touch the ball to the floor beside each hip.|Abdominals
Lying Leg Raise|Abdominals|Free Weights|Body Weight||0|BIA|crunch body legraise|Lifting straight legs from the floor while lying on the back.|Hands under the hips, legs straight. Raise the legs to vertical and lower until the heels nearly touch the floor.|Hip Flexors
Hanging Leg Raise|Abdominals|Free Weights|Pull-up Bar||0|A|crunch body hanging|Raising the legs while hanging from a bar.|Hang from the bar. Raise the legs to hip height or higher without swinging, then lower slowly.|Hip Flexors,Forearms
Cable Crunch|Abdominals|Machine|Cable||0|IA|woodchop cable|Kneeling crunch pulling a rope from a high cable.|Kneel under the pulley, rope at the head. Curl the elbows toward the knees and return.|
Ab Wheel Rollout|Abdominals|Free Weights|Body Weight||0|A|plank body|Rolling a wheel forward from the knees and back.|Kneel holding the wheel. Roll forward as far as you can keep the back flat, then pull back.|Lower Back,Shoulders
Plank|Abdominals|Isometric|Body Weight||0|BIA|plank body|Holding the body straight on the forearms and toes.|Forearms under the shoulders, body straight from head to heels. Hold, breathing steadily, without letting the hips sag.|Lower Back,Shoulders
Side Plank|Obliques|Isometric|Body Weight||0|BIA|plank body|Holding the body straight on one forearm, side-on to the floor.|Lie on one side, forearm under the shoulder. Lift the hips until the body is straight and hold; switch sides.|Abdominals
Mountain Climber|Abdominals|Plyometric|Body Weight||0|BIA|plank body climber|Driving the knees to the chest in turn from a push-up position.|Hands under the shoulders, body straight. Drive one knee to the chest, then switch legs quickly.|Hip Flexors,Shoulders
Bird Dog|Lower Back|Isometric|Body Weight||0|B|plank body birddog|On hands and knees, reaching one arm and the opposite leg out.|On all fours, extend one arm and the opposite leg until level with the back. Hold, return, switch.|Abdominals,Glutes
Dead Bug|Abdominals|Free Weights|Body Weight||0|B|crunch body bicycle|Lying on the back and lowering one arm and the opposite leg.|Arms up, knees over the hips. Lower one arm and the opposite leg toward the floor, keep the back flat, return and switch.|
Wall Sit|Quadriceps|Isometric|Body Weight||0|BI|squat body|Holding a sitting position with the back against a wall.|Back flat on the wall, slide down until the thighs are parallel, and hold.|Glutes
Cable Woodchop|Obliques|Machine|Cable||0|IA|woodchop cable|Pulling a high cable diagonally across the body.|Stand side-on to the high pulley. Pull the handle down across the body to the opposite knee, turning the trunk, and return.|Abdominals,Shoulders
Medicine Ball Slam|Total Body|Plyometric|Medicine Ball||0|BIA|jump mball slam|Lifting a ball overhead and slamming it to the floor.|Raise the ball overhead on the toes, then slam it down in front of the feet as hard as you can; pick it up and repeat.|Abdominals,Shoulders
Wall Ball|Total Body|Plyometric|Medicine Ball||0|IA|jump mball wallball|Squatting and throwing a ball up against a wall.|Hold the ball at the chest, squat, then stand explosively and throw it to a target on the wall; catch and squat again.|Quadriceps,Shoulders
Jump Squat|Quadriceps|Plyometric|Body Weight||0|IA|jump body squat|Squat followed by a jump as high as possible.|Squat to parallel and jump explosively, arms up. Land softly and go straight into the next squat.|Glutes,Calves
Box Jump|Quadriceps|Plyometric|Plyo Box||0|IA|jump box box|Jumping from the floor onto a box.|Stand before the box, swing the arms and jump onto it, landing softly in a squat. Step down.|Glutes,Calves
Broad Jump|Quadriceps|Plyometric|Body Weight||0|IA|jump body broad|Jumping forward as far as possible from both feet.|Swing the arms and jump forward, landing softly on both feet. Reset and repeat.|Glutes,Hamstrings
Tuck Jump|Quadriceps|Plyometric|Body Weight||0|A|jump body tuck|Jumping and pulling the knees to the chest.|Jump high and bring the knees to the chest; land softly and jump again at once.|Abdominals,Calves
Jumping Lunge|Quadriceps|Plyometric|Body Weight||0|A|jump body lunge|Lunge with a jump that switches the legs in the air.|From a lunge, jump and switch legs in the air, landing in a lunge on the other side.|Glutes
Burpee|Total Body|Plyometric|Body Weight||0|BIA|jump body burpee|Squat, kick back to a push-up position, return and jump.|Squat, place the hands down, jump the feet back, jump them in again and jump up with the arms overhead.|Chest,Quadriceps
Skater Jump|Glutes|Plyometric|Body Weight||0|IA|jump body broad|Leaping sideways from one leg to the other.|Leap sideways onto one foot, the other leg sweeping behind, and leap back to the other side.|Quadriceps,Adductors
Power Clean|Total Body|Free Weights|Barbell|Deadlift|55|A|hinge barbell|Pulling the bar explosively from the floor to the front of the shoulders.|Start as for a deadlift. Pull, then jump the hips forward and shrug, pulling under the bar to catch it on the shoulders.|Traps,Quadriceps,Glutes
Hang Clean|Total Body|Free Weights|Barbell|Deadlift|50|A|hinge barbell rdl|Clean started with the bar at the knees.|From the hang at the knees, jump and shrug, catching the bar on the front shoulders in a quarter squat.|Traps,Quadriceps
Thruster|Total Body|Free Weights|Barbell|Squat|40|IA|squat front|A front squat that flows into an overhead press.|Front squat, and as you stand drive the bar overhead in one motion. Lower it to the shoulders for the next squat.|Shoulders,Quadriceps
Kettlebell Snatch|Total Body|Free Weights|Kettlebell|Deadlift|15|A|swing kb|Swinging a kettlebell from between the legs to overhead in one motion.|Swing the bell back, drive the hips and pull the bell up close to the body, punching it overhead to lockout.|Shoulders,Glutes
Turkish Get-up|Total Body|Free Weights|Kettlebell|Bench Press|15|A|crunch kb situp|Standing up from lying with a kettlebell held overhead.|Lie holding the bell up on a straight arm. Stand up in steps, eyes on the bell, then reverse to lying.|Shoulders,Abdominals
Hamstring Stretch|Hamstrings|Stretch|None||0|BIA|stretch none toetouch|Standing forward bend for the back of the thighs.|Stand with the knees soft and fold forward from the hips, reaching toward the toes. Hold 20 to 30 seconds.|Lower Back
Seated Forward Bend|Hamstrings|Stretch|Mat||0|BIA|stretch mat sitreach|Reaching for the toes with the legs straight in front.|Sit with the legs straight. Lean forward from the hips with a long back and reach toward the feet. Hold 30 seconds.|Lower Back,Calves
Standing Quad Stretch|Quadriceps|Stretch|None||0|BIA|stretch none quad|Pulling one heel toward the buttock while standing.|Stand on one leg, take the other ankle and draw the heel to the buttock, knees together. Hold and switch.|Hip Flexors
Calf Stretch|Calves|Stretch|None||0|BIA|stretch none calf|Leaning on a wall with the back leg straight.|Hands on the wall, one foot back with the heel down and the knee straight. Lean in and hold; switch legs.|
Kneeling Hip Flexor Stretch|Hip Flexors|Stretch|Mat||0|BIA|stretch mat hipflexor|Kneeling lunge that stretches the front of the hip.|Kneel on one knee, the other foot forward. Tuck the pelvis and shift forward until the front of the hip stretches. Hold and switch.|Quadriceps
Child's Pose|Lower Back|Stretch|Mat||0|BIA|stretch mat child|Resting on the knees with the body folded forward and arms reaching out.|Kneel, sit back on the heels and fold forward with the arms long in front. Breathe slowly and hold.|Back,Shoulders
Cobra Stretch|Abdominals|Stretch|Mat||0|BIA|stretch mat cobra|Lying face down and pushing the chest up with the arms.|Lie face down, hands under the shoulders. Push the chest up, hips on the floor, and hold.|Lower Back
Cat-Cow Stretch|Lower Back|Stretch|Mat||0|BIA|stretch mat catcow|On hands and knees, rounding and then arching the back.|On all fours, round the back and drop the head, then arch the back and lift the head. Move slowly with the breath.|Abdominals,Neck
Downward Dog|Hamstrings|Stretch|Mat||0|BIA|stretch mat downdog|Hips high, hands and feet on the floor, body in an inverted V.|From a push-up position push the hips up and back, heels toward the floor, head between the arms. Hold.|Calves,Shoulders
Cross-Body Shoulder Stretch|Shoulders|Stretch|None||0|BIA|stretch none crossbody|Drawing one arm across the chest.|Bring one arm across the chest and press it closer with the other hand above the elbow. Hold and switch.|Back
Overhead Triceps Stretch|Triceps|Stretch|None||0|BIA|stretch none triceps|Pressing a bent elbow down behind the head.|Reach one hand down the back, elbow up, and press the elbow gently with the other hand. Hold and switch.|Shoulders
Doorway Chest Stretch|Chest|Stretch|None||0|BIA|stretch none chest|Opening the chest with a hand on a door frame or wall.|Place the forearm on the frame at shoulder height and turn the body away until the chest stretches. Hold and switch.|Shoulders
Overhead Reach|Back|Stretch|None||0|BIA|stretch none overhead|Reaching tall with both arms overhead.|Interlock the fingers, press the palms to the ceiling and stretch tall. Hold 20 seconds.|Shoulders,Abdominals
Neck Stretch|Neck|Stretch|None||0|BIA|stretch none neck|Tilting the head forward and to the side.|Sit or stand tall. Let the head drop forward, then tilt it toward each shoulder with a light hand. Hold each 20 seconds.|Traps
Seated Spinal Twist|Obliques|Stretch|Mat||0|BIA|stretch mat twist|Turning the trunk while seated with one knee crossed.|Sit with one leg straight, cross the other foot over it and turn toward the bent knee, hand behind. Hold and switch.|Lower Back,Glutes
Figure-Four Stretch|Glutes|Stretch|Mat||0|BIA|stretch mat figure4|Lying on the back with one ankle over the other knee.|Lie on the back, ankle over the opposite knee. Pull the lower thigh toward the chest until the hip stretches. Hold and switch.|Hip Flexors
Butterfly Stretch|Adductors|Stretch|Mat||0|BIA|stretch mat butterfly|Seated with the soles together, knees falling open.|Sit with the soles together and heels close. Hold the feet and lean forward, letting the knees drop. Hold.|Hip Flexors
World's Greatest Stretch|Hip Flexors|Stretch|None||0|IA|stretch none lunge_reach|A deep lunge with a hand on the floor and the other arm reaching up.|Step into a deep lunge, the hand of the rear side on the floor. Rotate and reach the other arm to the ceiling. Hold and switch.|Hamstrings,Obliques,Back
Standing Side Bend|Obliques|Stretch|None||0|BIA|stretch none sidebend|Bending sideways with the arms overhead.|Stand tall, arms overhead. Lean to one side without turning, hold, and switch sides.|Back
Lying Hamstring Stretch|Hamstrings|Stretch|Mat||0|BIA|crunch body legraise|Lying on the back and lifting one straight leg.|Lie on the back, raise one leg straight and hold it behind the thigh, drawing it gently toward you. Hold and switch.|Calves
Knee-to-Chest Stretch|Lower Back|Stretch|Mat||0|BIA|stretch mat figure4|Lying on the back and hugging the knees.|Lie on the back and draw both knees to the chest with the hands. Hold and breathe.|Glutes
Groin Stretch|Adductors|Stretch|None||0|BIA|stretch none hipflexor|Side lunge that stretches the inner thigh.|Stand wide and shift the weight to one bent knee, the other leg straight. Hold and switch.|Hip Flexors
Wrist Flexor Stretch|Forearms|Stretch|None||0|BIA|stretch none crossbody|Pulling the fingers back with the arm straight.|Arm straight forward, palm up. Draw the fingers back with the other hand. Hold and switch.|
Ankle Circles|Calves|Stretch|None||0|BIA|calf body|Circling each ankle slowly.|Stand on one foot, or sit, and draw slow circles with the other foot, ten each way.|
Arm Circles|Shoulders|Stretch|None||0|BIA|raise body lateral|Swinging the arms in growing circles.|Arms out to the sides, make small circles and let them grow; reverse after ten.|
Leg Swings|Hip Flexors|Stretch|None||0|BIA|stretch none quad|Swinging one leg forward and back while holding a support.|Hold a wall, swing one leg forward and back, higher each time, ten each leg.|Hamstrings,Glutes
Jumping Jacks|Total Body|Cardio|Body Weight||0|BIA|jump body tuck|Jumping the feet apart and together with the arms going up and down.|Jump the feet wide while raising the arms overhead, then jump back together. Keep a steady rhythm.|Calves,Shoulders
High Knees|Hip Flexors|Cardio|Body Weight||0|BIA|jump body lunge|Running on the spot bringing the knees to hip height.|Run on the spot, lifting the knees to hip height and pumping the arms.|Quadriceps,Calves
Jump Rope|Calves|Cardio|None||0|BIA|calf body|Skipping a rope.|Turn the rope with the wrists, jumping just high enough to clear it, landing softly on the balls of the feet.|Shoulders
Rowing Machine|Back|Cardio|Machine||0|BIA|row cable seated|Steady rowing on an ergometer.|Drive with the legs, then lean back and pull the handle to the ribs; return arms, body, legs in that order.|Quadriceps,Biceps
Battle Ropes|Shoulders|Cardio|None||0|IA|raise body front|Making waves in two heavy ropes.|Hold the rope ends in a half squat and move the arms up and down fast to send waves down the ropes.|Abdominals,Forearms
Sled Push|Quadriceps|Cardio|Machine||0|IA|lunge body|Pushing a loaded sled across the floor.|Hands on the posts, lean forward and drive the sled with short powerful steps.|Glutes,Calves
Stability Ball Crunch|Abdominals|Free Weights|Stability Ball||0|BI|crunch body crunch|Crunch with the back on a ball.|Lie with the lower back on the ball, feet flat. Curl the shoulders up and lower slowly over the ball.|
Stability Ball Hamstring Curl|Hamstrings|Free Weights|Stability Ball||0|IA|crunch body bridge|Bridge on a ball and roll it in with the heels.|Heels on the ball, hips lifted. Pull the ball toward you by bending the knees and roll it out again.|Glutes
Band Pull-Apart|Shoulders|Free Weights|Resistance Band||0|BIA|raise band front|Pulling a band apart in front of the chest.|Hold the band at shoulder height, arms straight. Pull it apart until it touches the chest and return.|Back
Band Squat|Quadriceps|Free Weights|Resistance Band||0|B|squat body|Squat against a band looped under the feet and over the shoulders.|Stand on the band with it over the shoulders. Squat and stand against the band.|Glutes
Smith Machine Bench Press|Chest|Machine|Smith Machine|Bench Press|70|BI|bench machine|Bench press with the bar on rails.|Lower the guided bar to the mid chest and press up; set the safety stops first.|Triceps
Dumbbell Lunge|Quadriceps|Free Weights|Dumbbell|Squat|15|BIA|lunge db|Forward lunge and return with a dumbbell in each hand.|Step forward, lower the back knee, and push back to standing. Alternate legs.|Glutes
Zercher Squat|Quadriceps|Free Weights|Barbell|Squat|50|A|squat front|Squat holding the bar in the crooks of the elbows.|Hold the bar in the bent elbows against the body, squat to depth and stand.|Abdominals,Glutes
Overhead Squat|Quadriceps|Free Weights|Barbell|Squat|40|A|squat body|Squat with the bar held overhead on straight arms.|Wide grip, bar locked overhead. Squat keeping the bar over the mid foot and stand.|Shoulders,Abdominals
Single-Leg Romanian Deadlift|Hamstrings|Free Weights|Dumbbell|Deadlift|12|IA|hinge db rdl|Hinge on one leg, the other leg reaching back.|Stand on one leg, hinge forward with the other leg rising behind until the body is level, then return.|Glutes,Lower Back
Cable Pull-Through|Glutes|Machine|Cable|Deadlift|25|BI|hinge cable rdl|Hinging with a rope between the legs from a low cable.|Face away from the low pulley, rope between the legs. Hinge back, then drive the hips forward to stand.|Hamstrings
Reverse Crunch|Abdominals|Free Weights|Body Weight||0|BIA|crunch body legraise|Curling the hips off the floor toward the chest.|Lie on the back, knees bent over the hips. Curl the hips up toward the chest and lower slowly.|
Hollow Hold|Abdominals|Isometric|Body Weight||0|IA|crunch body legraise|Holding a shallow boat shape on the back.|Press the lower back to the floor, raise the legs and shoulders slightly and hold.|Hip Flexors
Dumbbell Floor Press|Chest|Free Weights|Dumbbell|Bench Press|28|BI|bench db|Dumbbell press lying on the floor.|Lie on the floor, press the dumbbells up until the arms are straight, lower until the elbows touch the floor.|Triceps
Landmine Press|Shoulders|Free Weights|Barbell|Bench Press|30|IA|press barbell|Pressing one end of an anchored bar up and forward.|Hold the end of the bar at the shoulder, press it up and forward until the arm is straight.|Chest,Triceps
Reverse Curl|Forearms|Free Weights|EZ Bar|Bench Press|18|BIA|curl ezbar|Curl with the palms facing down.|Overhand grip, elbows at the sides. Curl the bar up and lower slowly.|Biceps
Neck Flexion|Neck|Free Weights|None||0|IA|stretch none neck|Nodding the head forward against the hand's resistance.|Place a hand on the forehead and press the head forward against it for a slow count, then relax.|
"""


MUSCLE_GROUPS = [
    'Abdominals', 'Adductors', 'Back', 'Biceps', 'Calves', 'Chest', 'Forearms', 'Glutes',
    'Hamstrings', 'Hip Flexors', 'Lower Back', 'Neck', 'Obliques', 'Quadriceps', 'Shoulders',
    'Total Body', 'Traps', 'Triceps',
]

EQUIPMENT = [
    'Barbell', 'Bench', 'Body Weight', 'Cable', 'Dumbbell', 'EZ Bar', 'Kettlebell', 'Machine', 'Mat',
    'Medicine Ball', 'None', 'Parallel Bars', 'Plyo Box', 'Pull-up Bar', 'Resistance Band',
    'Smith Machine', 'Stability Ball',
]

# (name, wtype, muscle group, levels, description,
#  [(exercise, number of sets, reps (0: the athlete's goal), intensity level, goal, notes)])
R90, R2M, HOLD = 'Rest 90 s', 'Rest 2-3 min', 'Hold 30 s each side'
COOL = [('Hamstring Stretch', 1, 1, '2', '', HOLD), ('Standing Quad Stretch', 1, 1, '2', '', HOLD),
        ('Doorway Chest Stretch', 1, 1, '2', '', HOLD)]
WORKOUTS = [
    ('Beginner Full Body A', 'strength', 'Total Body', 'B',
     'Two or three times a week with Full Body B on alternate days. Start light and learn the movements.',
     [('Goblet Squat', 2, 0, '5', '', R90), ('Dumbbell Bench Press', 2, 0, '5', '', R90),
      ('Seated Cable Row', 2, 0, '5', '', R90), ('Dumbbell Romanian Deadlift', 2, 0, '5', '', R90),
      ('Lateral Raise', 2, 0, '4', '', ''), ('Plank', 2, 1, '4', '', 'Hold 20-30 s')] + COOL),
    ('Beginner Full Body B', 'strength', 'Total Body', 'B',
     'The second beginner day: a squat, a press, a pull and the core.',
     [('Leg Press', 2, 0, '5', '', R90), ('Lat Pulldown', 2, 0, '5', '', R90),
      ('Seated Dumbbell Press', 2, 0, '5', '', R90), ('Glute Bridge', 2, 15, '4', '', ''),
      ('Dumbbell Curl', 2, 0, '4', '', ''), ('Triceps Pushdown', 2, 0, '4', '', ''),
      ('Crunch', 2, 15, '3', '', '')] + COOL),
    ('Machine Circuit', 'strength', 'Total Body', 'BI',
     'One set at each machine in turn with little rest; repeat the circuit two or three times.',
     [('Leg Press', 1, 12, '5', '', 'Move on'), ('Chest Press Machine', 1, 12, '5', '', 'Move on'),
      ('Lat Pulldown', 1, 12, '5', '', 'Move on'), ('Leg Extension', 1, 12, '5', '', 'Move on'),
      ('Shoulder Press Machine', 1, 12, '5', '', 'Move on'), ('Seated Leg Curl', 1, 12, '5', '', 'Move on'),
      ('Machine Row', 1, 12, '5', '', 'Move on'), ('Seated Calf Raise', 1, 15, '4', '', '')]),
    ('Upper Body Strength', 'strength', 'Chest', 'I',
     'Upper body day of a four-day split: heavy presses and rows, then the arms.',
     [('Bench Press', 4, 8, '7', 'Add weight when all reps are made', R2M),
      ('Bent-over Row', 4, 8, '7', '', R2M), ('Overhead Press', 3, 8, '6', '', R90),
      ('Chin-up', 3, 8, '6', '', R90), ('Incline Dumbbell Press', 3, 10, '6', '', R90),
      ('Barbell Curl', 3, 10, '5', '', ''), ('Lying Triceps Extension', 3, 10, '5', '', '')]),
    ('Lower Body Strength', 'strength', 'Quadriceps', 'I',
     'Lower body day of a four-day split: squat, hinge, single-leg work and calves.',
     [('Back Squat', 4, 8, '7', 'Add weight when all reps are made', R2M),
      ('Romanian Deadlift', 3, 8, '7', '', R2M), ('Walking Lunge', 3, 10, '6', '', '10 steps each leg'),
      ('Lying Leg Curl', 3, 10, '5', '', ''), ('Standing Calf Raise', 4, 12, '5', '', ''),
      ('Hanging Leg Raise', 3, 10, '5', '', '')] + COOL[:2]),
    ('Push Workout', 'strength', 'Chest', 'IA',
     'Chest, shoulders and triceps.',
     [('Bench Press', 4, 6, '8', '', R2M), ('Seated Dumbbell Press', 3, 10, '6', '', R90),
      ('Dumbbell Fly', 3, 12, '5', '', ''), ('Lateral Raise', 3, 12, '5', '', ''),
      ('Parallel Bar Dip', 3, 10, '6', '', ''), ('Rope Pushdown', 3, 12, '5', '', '')]),
    ('Pull Workout', 'strength', 'Back', 'IA',
     'Back, rear shoulders and biceps.',
     [('Deadlift', 3, 5, '8', '', R2M), ('Pull-up', 4, 8, '7', '', R90),
      ('One-Arm Dumbbell Row', 3, 10, '6', '', 'Each arm'), ('Face Pull', 3, 15, '4', '', ''),
      ('Hammer Curl', 3, 10, '5', '', ''), ('Barbell Shrug', 3, 12, '5', '', '')]),
    ('Powerlifting Big Three', 'strength', 'Total Body', 'A',
     'The three competition lifts, heavy, with long rests.',
     [('Back Squat', 5, 5, '9', 'Work up to a top set', R2M), ('Bench Press', 5, 5, '9', '', R2M),
      ('Deadlift', 3, 5, '9', '', R2M), ('Plank', 3, 1, '5', '', 'Hold 45 s')]),
    ('Advanced Legs', 'strength', 'Quadriceps', 'A',
     'High-volume leg day for experienced lifters.',
     [('Back Squat', 5, 6, '8', '', R2M), ('Front Squat', 3, 8, '7', '', R2M),
      ('Bulgarian Split Squat', 3, 10, '7', '', 'Each leg'), ('Stiff-Legged Deadlift', 3, 10, '7', '', R90),
      ('Leg Extension', 3, 15, '6', '', ''), ('Seated Leg Curl', 3, 12, '6', '', ''),
      ('Seated Calf Raise', 4, 15, '6', '', '')] + COOL[:2]),
    ('Advanced Chest and Back', 'strength', 'Chest', 'A',
     'Supersets of opposing muscles: do one set of each pair back to back.',
     [('Incline Bench Press', 4, 6, '8', '', 'Superset with the row'), ('Pendlay Row', 4, 6, '8', '', R2M),
      ('Dumbbell Bench Press', 3, 10, '7', '', 'Superset with the pulldown'), ('Lat Pulldown', 3, 10, '7', '', R90),
      ('Cable Crossover', 3, 12, '6', '', ''), ('Straight-Arm Pulldown', 3, 12, '6', '', '')]),
    ('Core Builder', 'strength', 'Abdominals', 'BIA',
     'Abdominals, obliques and lower back; add it after any workout.',
     [('Crunch', 3, 15, '4', '', ''), ('Bicycle Crunch', 3, 20, '4', '', ''),
      ('Plank', 3, 1, '4', '', 'Hold 30-60 s'), ('Side Plank', 2, 1, '4', '', HOLD),
      ('Bird Dog', 2, 10, '3', '', 'Each side'), ('Superman', 2, 12, '3', '', '')]),
    ('Full Body Stretch', 'strength', 'Total Body', 'BIA',
     'A cool-down or rest-day routine; move slowly into each stretch and breathe.',
     [('Neck Stretch', 1, 1, '1', '', 'Hold 20 s each way'), ('Cross-Body Shoulder Stretch', 1, 1, '1', '', HOLD),
      ('Overhead Triceps Stretch', 1, 1, '1', '', HOLD), ('Doorway Chest Stretch', 1, 1, '1', '', HOLD),
      ('Cat-Cow Stretch', 1, 10, '1', '', 'Slowly'), ("Child's Pose", 1, 1, '1', '', 'Hold 60 s'),
      ('Kneeling Hip Flexor Stretch', 1, 1, '1', '', HOLD), ('Seated Forward Bend', 1, 1, '1', '', 'Hold 30 s'),
      ('Figure-Four Stretch', 1, 1, '1', '', HOLD), ('Calf Stretch', 1, 1, '1', '', HOLD)]),
    # sports
    ('Runner Strength Basics', 'sports', 'Quadriceps', 'B',
     'Twice a week for runners: legs, hips and core against injury.',
     [('Body Weight Squat', 2, 15, '4', '', ''), ('Reverse Lunge', 2, 10, '5', '', 'Each leg'),
      ('Glute Bridge', 2, 15, '4', '', ''), ('Single-Leg Calf Raise', 2, 15, '4', '', 'Each leg'),
      ('Side Plank', 2, 1, '4', '', HOLD), ('Calf Stretch', 1, 1, '2', '', HOLD),
      ('Kneeling Hip Flexor Stretch', 1, 1, '2', '', HOLD)]),
    ('Golf Fitness', 'sports', 'Obliques', 'B',
     'Trunk rotation, hip mobility and shoulder health for a better swing.',
     [('Cable Woodchop', 2, 12, '4', '', 'Each side'), ('Glute Bridge', 2, 15, '4', '', ''),
      ('Band Pull-Apart', 2, 15, '3', '', ''), ('Bird Dog', 2, 10, '3', '', 'Each side'),
      ('Seated Spinal Twist', 1, 1, '2', '', HOLD), ('Cross-Body Shoulder Stretch', 1, 1, '2', '', HOLD)]),
    ('Swimmer Dryland', 'sports', 'Back', 'B',
     'Pulling strength and shoulder stability on land.',
     [('Lat Pulldown', 3, 12, '5', '', ''), ('Face Pull', 3, 15, '4', '', ''),
      ('Push-up', 3, 10, '5', '', ''), ('Superman', 2, 12, '3', '', ''),
      ('Overhead Reach', 1, 1, '2', '', 'Hold 20 s'), ('Overhead Triceps Stretch', 1, 1, '2', '', HOLD)]),
    ('Cycling Strength', 'sports', 'Quadriceps', 'I',
     'Off-season strength for cyclists: single-leg power and a strong trunk.',
     [('Back Squat', 3, 8, '7', '', R2M), ('Bulgarian Split Squat', 3, 8, '6', '', 'Each leg'),
      ('Romanian Deadlift', 3, 8, '6', '', R90), ('Step-up', 3, 10, '6', '', 'Each leg'),
      ('Plank', 3, 1, '4', '', 'Hold 45 s'), ('Kneeling Hip Flexor Stretch', 1, 1, '2', '', HOLD)]),
    ('Soccer Strength', 'sports', 'Total Body', 'I',
     'Strength and landing mechanics for field sports.',
     [('Front Squat', 3, 6, '7', '', R2M), ('Nordic Hamstring Curl', 3, 5, '7', '', 'Slow lowering'),
      ('Box Jump', 3, 5, '7', '', 'Step down'), ('Walking Lunge', 3, 10, '6', '', 'Each leg'),
      ('Pull-up', 3, 6, '6', '', ''), ('Groin Stretch', 1, 1, '2', '', HOLD)]),
    ("Tennis Power", 'sports', 'Shoulders', 'I',
     'Rotational power, shoulder care and quick legs for racket sports.',
     [('Medicine Ball Slam', 3, 8, '7', '', ''), ('Cable Woodchop', 3, 10, '6', '', 'Each side'),
      ('One-Arm Dumbbell Row', 3, 10, '6', '', 'Each arm'), ('Face Pull', 3, 15, '4', '', ''),
      ('Skater Jump', 3, 10, '6', '', ''), ('Wrist Flexor Stretch', 1, 1, '2', '', HOLD)]),
    ('Ski Preseason', 'sports', 'Quadriceps', 'IA',
     'Leg endurance and eccentric strength before the snow.',
     [('Wall Sit', 3, 1, '6', '', 'Hold 60 s'), ('Goblet Squat', 3, 15, '6', '', ''),
      ('Skater Jump', 3, 12, '7', '', ''), ('Reverse Lunge', 3, 10, '6', '', 'Each leg'),
      ('Russian Twist', 3, 20, '5', '', '')]),
    ('Sprint Power', 'sports', 'Glutes', 'A',
     'Explosive work for sprinters and jumpers; full rest between sets.',
     [('Power Clean', 5, 3, '9', '', R2M), ('Jump Squat', 4, 5, '8', '', R2M),
      ('Broad Jump', 4, 3, '8', '', 'Full rest'), ('Hip Thrust', 3, 8, '7', '', R90),
      ('Nordic Hamstring Curl', 3, 5, '7', '', ''), ('Hamstring Stretch', 1, 1, '2', '', HOLD)]),
    ('Basketball Plyometrics', 'sports', 'Calves', 'A',
     'Jumping power and landing control; land softly and quietly.',
     [('Box Jump', 4, 5, '8', '', 'Step down'), ('Tuck Jump', 3, 8, '8', '', ''),
      ('Jumping Lunge', 3, 10, '8', '', ''), ('Single-Leg Calf Raise', 3, 15, '6', '', 'Each leg'),
      ('Burpee', 3, 10, '8', '', ''), ("World's Greatest Stretch", 1, 1, '2', '', HOLD)]),
    ('Combat Conditioning', 'sports', 'Total Body', 'A',
     'A hard circuit for fighters and team-sport athletes; 40 s work, 20 s rest.',
     [('Kettlebell Swing', 3, 15, '8', '', ''), ('Burpee', 3, 10, '9', '', ''),
      ("Farmer's Walk", 3, 1, '8', '', '40 m'), ('Battle Ropes', 3, 1, '8', '', '30 s'),
      ('Mountain Climber', 3, 30, '8', '', ''), ('Turkish Get-up', 2, 3, '6', '', 'Each side')]),
]

SQL_HEADER = """
-- Seed of the library store's strength library: muscle groups, equipment, exercises and
-- stretches with their muscle groups, and sample workouts. Written by tools/make_strength_seed.py,
-- which also draws each exercise's picture (data/images/ex_*.gif); edit the generator, not this file.
--
-- Where the facts come from
-- -------------------------
-- Written for this program from general coaching practice: the exercises, their muscles and
-- their cues are those of common gym and physiotherapy teaching; the sample workouts follow
-- usual programming (2-3 sets for beginners, 8-10 reps for hypertrophy, 3-5 heavy reps for
-- strength, 30 s holds for stretches).
--
-- How the tables are used
-- -----------------------
-- strength_exercises: lift is the main lift an exercise is compared with ("Squat",
--     "Bench Press" or "Deadlift", or empty) and Perc_Lift the share of that lift's one-repetition
--     maximum, in percent, that is a fair working weight for about ten repetitions of the exercise
--     (per dumbbell where two are held). The goal builder starts from it; an exercise without a
--     lift (body weight, bands, stretches) has 0 and no lift. Levels are "Y" or "". Type is one of
--     "Cardio", "Free Weights", "Machine", "Isometric", "Plyometric", "Stretch"; body-weight
--     strength moves count as "Free Weights". Image is a picture of the Images folder.
-- muscle_associations: each exercise's major group and the further groups it trains.
-- workouts and Workout_exercises: one row per set, Sets being the set's number. Reps 0 and
--     weight 0 take the athlete's goals when the workout is scheduled; Intensity is a level of
--     the athlete's intensity list (1 to 10).
"""


# ---------------------------------------------------------------------------------------------
# The library rows
# ---------------------------------------------------------------------------------------------

LEVELS = (('B', 'Beginner'), ('I', 'Intermediate'), ('A', 'Advanced'))


def parse_exercises():
    rows = []
    for line in EXERCISES.strip().splitlines():
        if not line.strip() or line.startswith('#'):
            continue
        f = [x.strip() for x in line.split('|')]
        if len(f) != 11:
            raise SystemExit('bad exercise line: ' + line)
        name, group, typ, equip, lift, perc, levels, pattern, desc, instr, more = f
        rows.append(dict(name=name, group=group, type=typ, equipment=equip, lift=lift,
                         perc=float(perc), levels=levels, pattern=pattern.split(), desc=desc,
                         instr=instr, more=[g for g in more.split(',') if g]))
    return rows


def image_name(name):
    return 'ex_' + re.sub(r'[^a-z0-9]+', '_', name.lower().replace("'", '')).strip('_') + '.gif'


def q(text):
    return "'" + text.replace("'", "''") + "'"


def num(x):
    return ('%g' % x)


def check(exercises):
    names = [e['name'].lower() for e in exercises]
    assert len(names) == len(set(names)), 'duplicate exercise names'
    for e in exercises:
        assert e['group'] in MUSCLE_GROUPS, e['name'] + ': group ' + e['group']
        assert e['equipment'] in EQUIPMENT, e['name'] + ': equipment ' + e['equipment']
        assert e['type'] in ('Cardio', 'Free Weights', 'Machine', 'Isometric', 'Plyometric', 'Stretch'), e['name']
        assert e['lift'] in ('', 'Squat', 'Bench Press', 'Deadlift'), e['name']
        assert (e['lift'] == '') == (e['perc'] == 0), e['name'] + ': lift and Perc_Lift go together'
        assert 0 <= e['perc'] <= 99, e['name']
        assert e['levels'] and set(e['levels']) <= set('BIA'), e['name']
        assert len(e['name']) <= 50 and len(e['desc']) <= 255 and len(e['instr']) <= 255, e['name']
        for g in e['more']:
            assert g in MUSCLE_GROUPS and g != e['group'], e['name'] + ': further group ' + g
    known = set(names)
    for w in WORKOUTS:
        assert len(w[0]) <= 50 and w[1] in ('strength', 'sports') and len(w[4]) <= 255, w[0]
        assert w[2] in MUSCLE_GROUPS, w[0]
        for item in w[5]:
            assert item[0].lower() in known, w[0] + ': no exercise ' + item[0]
            assert len(item[4]) <= 50 and len(item[5]) <= 50, w[0]


def write_sql(exercises, path):
    out = [SQL_HEADER.strip(), '']
    out.append('-- Muscle groups.')
    out.append('INSERT INTO muscle_groups ("Group") VALUES\n' +
               ',\n'.join('    (%s)' % q(g) for g in MUSCLE_GROUPS) + ';')
    out.append('')
    out.append('-- Equipment.')
    out.append('INSERT INTO strength_equipment ("Equipment") VALUES\n' +
               ',\n'.join('    (%s)' % q(g) for g in EQUIPMENT) + ';')
    out.append('')
    out.append('-- Exercises and stretches.')
    out.append('INSERT INTO strength_exercises ("exercise_id", "muscle_group", "exercise", "Beginner", '
               '"Intermediate", "Advanced", "Type", "Description", "Perc_Lift", "lift", "Instruction", '
               '"Equipment", "Image") VALUES')
    vals = []
    for i, e in enumerate(exercises, 1):
        lv = [q('Y' if k in e['levels'] else '') for k, _ in LEVELS]
        vals.append('    (%d, %s, %s, %s, %s, %s, %s,\n     %s,\n     %s, %s,\n     %s,\n     %s, %s)' % (
            i, q(e['group']), q(e['name']), lv[0], lv[1], lv[2], q(e['type']), q(e['desc']),
            num(e['perc']), q(e['lift']), q(e['instr']), q(e['equipment']), q(image_name(e['name']))))
    out.append(',\n'.join(vals) + ';')
    out.append('')
    out.append('-- Each exercise\'s muscle groups: its major group first, then the groups it also trains.')
    out.append('INSERT INTO muscle_associations ("exercise", "muscle_group") VALUES')
    vals = []
    for e in exercises:
        for g in [e['group']] + e['more']:
            vals.append('    (%s, %s)' % (q(e['name']), q(g)))
    out.append(',\n'.join(vals) + ';')
    out.append('')
    by_name = {e['name'].lower(): e for e in exercises}
    out.append('-- Sample workouts: "strength" (the library\'s Workouts) and "sports" (Sports Workouts), for each level.')
    out.append('INSERT INTO workouts ("Workout_ID", "Workout_Name", "workout_desc", "muscle_group", "wtype", '
               '"Beginner", "Intermediate", "Advanced") VALUES')
    vals = []
    for i, w in enumerate(WORKOUTS, 1):
        name, wtype, group, levels, desc, _ = w
        lv = [q('Y' if k in levels else '') for k, _ in LEVELS]
        vals.append('    (%d, %s,\n     %s,\n     %s, %s, %s, %s, %s)' % (
            i, q(name), q(desc), q(group), q(wtype), lv[0], lv[1], lv[2]))
    out.append(',\n'.join(vals) + ';')
    out.append('')
    out.append('-- Their sets, one row per set in order; reps or weight 0 take the athlete\'s goal.')
    for i, w in enumerate(WORKOUTS, 1):
        out.append('INSERT INTO Workout_exercises ("Workout_Name", "Workout_ID", "muscle_group", "exercise", '
                   '"Sets", "Reps", "weight", "Intensity", "Goal", "Comments") VALUES')
        vals = []
        for ex, sets, reps, inten, goal, comment in w[5]:
            e = by_name[ex.lower()]
            for s in range(1, sets + 1):
                vals.append('    (%s, %d, %s, %s, %d, %d, 0, %s, %s, %s)' % (
                    q(w[0]), i, q(e['group']), q(e['name']), s, reps, q(inten), q(goal), q(comment)))
        out.append(',\n'.join(vals) + ';')
    with open(path, 'w', encoding='utf-8', newline='\n') as f:
        f.write('\n'.join(out) + '\n')


def write_images(exercises, folder):
    with tempfile.TemporaryDirectory() as tmp:
        for e in exercises:
            pattern, args = e['pattern'][0], e['pattern'][1:]
            start, end = PATTERNS[pattern](*args)
            render(e['name'], [start, end], os.path.join(folder, image_name(e['name'])), tmp)


def main():
    ap = argparse.ArgumentParser(description=__doc__.split('\n')[0])
    ap.add_argument('--no-images', action='store_true', help='write the SQL only')
    ap.add_argument('--only', help='draw only the exercises whose name contains this text')
    args = ap.parse_args()
    exercises = parse_exercises()
    check(exercises)
    write_sql(exercises, os.path.join(ROOT, 'data', 'seed', 'library_strength.sql'))
    if not args.no_images:
        chosen = [e for e in exercises if not args.only or args.only.lower() in e['name'].lower()]
        write_images(chosen, os.path.join(ROOT, 'data', 'images'))
    print('%d exercises, %d workouts' % (len(exercises), len(WORKOUTS)))


if __name__ == '__main__':
    main()
